#pragma once
// A board of plain records that plays one game, so a test can read back what the engine
// did. Tray slots 1680 twips apart from (1080, 240), 2N to a row; cells 1800 apart from
// (5760, 4200), lower on the larger boards to clear the tray; pieces 1560 square, markers 240.
#include <initializer_list>
#include <map>
#include <tuple>

#include "engine/game.h"
#include "engine/grid.h"
#include "scripted_random.h"

namespace engine::testing {

using Spot = std::pair<float, float>;

// The three options the board procedures read.
inline Options options(std::int16_t level, std::int16_t playsound, std::int16_t timerson) {
    Options o;
    o.level = level;
    o.playsound = playsound;
    o.timerson = timerson;
    return o;
}

struct Box {
    float left = 0, top = 0, side = 1560;
    bool visible = true, enabled = true;
    std::string picture = {};
    int raised = 0;
    bool operator==(const Box& o) const {  // where it is and how it looks
        return std::tie(left, top, visible, enabled, picture) ==
               std::tie(o.left, o.top, o.visible, o.enabled, o.picture);
    }
};

// The real generator, seeded from a counter instead of the clock so games replay.
struct ReplayableRandom : ClockRandom {
    using ClockRandom::ClockRandom;
    void seedFromClock() override { mix(++seedings); }
    std::uint64_t seedings = 0;
};

class FakeBoard : public BoardView {
  public:
    // Draws come from the script when there is one, else from ReplayableRandom.
    explicit FakeBoard(int size, const std::vector<double>& script = {})
        : scripted(script),
          game(size, *this, script.empty() ? static_cast<RandomSource&>(replay) : scripted) {
        const int n = game.n(), tray = 2 * n;
        const float gridTop = 4200.0f + 1680 * ((n + 1) / 2 - 2);
        for (int k = 0; k < n * n; ++k) {
            boxes[{Pic::Image1, k}] = {5760.0f + 1800 * (k % n), gridTop + 1800 * (k / n)};
            boxes[{Pic::Image3, k}] = {1080.0f + 1680 * (k % tray), 240.0f + 1680 * (k / tray)};
            boxes[{Pic::Image2, k}] = boxes[{Pic::Image3, k}];
            boxes[{Pic::Image5, k}] = {0, 0, 240, false};
        }
    }
    Box& box(Pic pic, int i) { return boxes.at({pic, i}); }
    Spot at(Pic pic, int i) const { return {left(pic, i), top(pic, i)}; }
    void put(int piece, Spot spot) {
        std::tie(box(Pic::Image2, piece).left, box(Pic::Image2, piece).top) = spot;
    }
    // Rows of digits from the top, 0 for an empty cell; each use takes a fresh copy.
    void lay(const std::string& rows) {
        std::vector<int> copies(10, 0);
        int cell = 0;
        for (char c : rows) {
            if (c > '0') put((c - '1') * game.n() + copies[c - '0']++, at(Pic::Image1, cell));
            if (c != ' ') ++cell;
        }
    }

    float left(Pic pic, int i) const override { return boxes.at({pic, i}).left; }
    float top(Pic pic, int i) const override { return boxes.at({pic, i}).top; }
    float width(Pic pic, int i) const override { return boxes.at({pic, i}).side; }
    float height(Pic pic, int i) const override { return boxes.at({pic, i}).side; }
    void setLeft(Pic pic, int i, float v) override { box(pic, i).left = v; }
    void setTop(Pic pic, int i, float v) override { box(pic, i).top = v; }
    void setVisible(Pic pic, int i, bool v) override { box(pic, i).visible = v; }
    void setEnabled(Pic pic, int i, bool v) override { box(pic, i).enabled = v; }
    void loadPicture(Pic pic, int i, const std::string& p) override { box(pic, i).picture = p; }
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
    int highscoreChecks = 0;
    ReplayableRandom replay{1};
    ScriptedRandom scripted;
    Game game;
};

// A grid held [x][y], as rows of digits from the top.
inline std::string rowsOf(const Grid& grid) {
    std::string rows;
    for (std::size_t y = 0; y < grid.size(); ++y, rows += ' ')
        for (const auto& column : grid) rows += std::to_string(column[y]);
    return rows.substr(0, rows.size() - 1);
}

// Shuffle draws that swap every entry with itself, then the draws that follow.
inline std::vector<double> unshuffled(int count, std::initializer_list<double> then = {}) {
    std::vector<double> draws;
    for (int i = 0; i < 100 * count; ++i) draws.push_back((i % count + 0.5) / count);
    draws.insert(draws.end(), then);
    return draws;
}

inline std::vector<double> operator+(std::vector<double> a, const std::vector<double>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

}  // namespace engine::testing
