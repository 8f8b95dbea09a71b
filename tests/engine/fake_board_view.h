#pragma once
// A board made of plain records, laid out like the real screens, so a test can
// read back what the engine did: positions, visibility, pictures, sounds.
#include <cstdint>
#include <initializer_list>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "engine/game.h"

namespace engine::testing {

struct Box {
    float left = 0, top = 0, side = 0;
    bool visible = true, enabled = true;
    std::string picture = {};
    int raised = 0;
    bool operator==(const Box& o) const {
        return left == o.left && top == o.top && visible == o.visible && enabled == o.enabled &&
               picture == o.picture;
    }
};

class FakeBoardView : public BoardView {
  public:
    explicit FakeBoardView(int size) {
        const int n = 4 + size, trayRow[] = {8, 11, 12};
        const float pitch[] = {1800, 1440, 1200}, side[] = {1560, 1140, 1020};
        const float trayLeft[] = {1080, 360, 480}, trayTop[] = {240, 120, 120};
        const float trayPitch[] = {1680, 1320, 1200}, marker[] = {240, 240, 150};
        for (int k = 0; k < n * n; ++k) {
            const float s = side[size], tp = trayPitch[size];
            boxes[{Pic::Image1, k}] = {5760 + pitch[size] * (k % n), 4200 + pitch[size] * (k / n),
                                       s};
            boxes[{Pic::Image3, k}] = {trayLeft[size] + tp * (k % trayRow[size]),
                                       trayTop[size] + tp * (k / trayRow[size]), s};
            boxes[{Pic::Image2, k}] = boxes[{Pic::Image3, k}];
            boxes[{Pic::Image5, k}] = {0, 0, marker[size], false};
        }
    }
    Box& box(Pic pic, int i) { return boxes.at({pic, i}); }
    std::pair<float, float> at(Pic pic, int i) const { return {left(pic, i), top(pic, i)}; }
    void put(int piece, Pic target, int i) {
        place(piece, box(target, i).left, box(target, i).top);
    }
    void place(int piece, float left, float top) {
        box(Pic::Image2, piece).left = left;
        box(Pic::Image2, piece).top = top;
    }

    float left(Pic pic, int i) const override { return boxes.at({pic, i}).left; }
    float top(Pic pic, int i) const override { return boxes.at({pic, i}).top; }
    float width(Pic pic, int i) const override { return boxes.at({pic, i}).side; }
    float height(Pic pic, int i) const override { return boxes.at({pic, i}).side; }
    void setLeft(Pic pic, int i, float v) override {
        box(pic, i).left = v;
        if (pic == Pic::Image2) moved.push_back(i);
    }
    void setTop(Pic pic, int i, float v) override { box(pic, i).top = v; }
    void setVisible(Pic pic, int i, bool v) override { box(pic, i).visible = v; }
    void setEnabled(Pic pic, int i, bool v) override { box(pic, i).enabled = v; }
    void loadPicture(Pic pic, int i, const std::string& path) override {
        box(pic, i).picture = path;
    }
    void bringToFront(Pic pic, int i) override { box(pic, i).raised++; }
    std::string caption(Lab l) const override { return captions.count(l) ? captions.at(l) : ""; }
    void setCaption(Lab l, const std::string& text) override { captions[l] = text; }
    void setVisible(Lab l, bool v) override { shown[l] = v; }
    void setTimerEnabled(Tmr t, bool on) override { timers[t] = on; }
    void playwav(const std::string& path) override { sounds.push_back(path); }
    void checkhighscore() override { ++highscoreChecks; }

    std::map<std::pair<Pic, int>, Box> boxes;
    std::map<Lab, std::string> captions;
    std::map<Lab, bool> shown;
    std::map<Tmr, bool> timers;
    std::vector<std::string> sounds;
    std::vector<int> moved;  // pieces, in the order they were moved
    int highscoreChecks = 0;
};

// Shuffle draws that swap every entry with itself, then the draws that follow.
inline std::vector<double> unshuffled(int count, std::initializer_list<double> then = {}) {
    std::vector<double> draws;
    for (int pass = 0; pass < 100; ++pass) {
        for (int k = 0; k < count; ++k) draws.push_back((k + 0.5) / count);
    }
    draws.insert(draws.end(), then);
    return draws;
}

inline std::vector<double> operator+(std::vector<double> a, const std::vector<double>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

// The real generator, seeded from a counter instead of the clock so a failing
// sweep replays the same games.
class ReplayableRandom : public ClockRandom {
  public:
    using ClockRandom::ClockRandom;
    void seedFromClock() override { mix(++seedings_); }

  private:
    std::uint64_t seedings_ = 0;
};

}  // namespace engine::testing
