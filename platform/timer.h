#pragma once
// A screen's timer: an interval in milliseconds and an on/off switch.
// Switching on a timer that is already on keeps its running interval.
#include <QTimer>
#include <functional>

namespace platform {

class Timer {
  public:
    Timer(QObject* owner, int intervalMs);
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;
    void setEnabled(bool on);
    bool Enabled() const { return timer_->isActive(); }
    int Interval() const { return timer_->interval(); }  // milliseconds
    // Runs the handler once, as a tick would (tests use this to skip waiting).
    void tick() {
        if (onTimer) onTimer();
    }
    std::function<void()> onTimer;

  private:
    QTimer* timer_;
};

// Stops every timer of every screen for the rest of the run, and keeps any
// from being switched on again: the game is ending, and nothing may tick
// under the message that says why (a check would judge a board nobody sees).
void stopAllTimers();

}  // namespace platform
