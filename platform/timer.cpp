#include "platform/timer.h"

#include <set>

namespace platform {

namespace {

std::set<Timer*>& liveTimers() {
    static std::set<Timer*> timers;
    return timers;
}

bool& timersStopped() {
    static bool stopped = false;
    return stopped;
}

}  // namespace

Timer::Timer(QObject* owner, int intervalMs) : timer_(new QTimer(owner)) {
    timer_->setInterval(intervalMs);
    timer_->setTimerType(Qt::PreciseTimer);
    QObject::connect(timer_, &QTimer::timeout, timer_, [this] {
        if (onTimer) onTimer();
    });
    liveTimers().insert(this);
}

Timer::~Timer() {
    liveTimers().erase(this);
}

void Timer::setEnabled(bool on) {
    if (on && !timer_->isActive() && !timersStopped()) timer_->start();
    if (!on) timer_->stop();
}

void stopAllTimers() {
    timersStopped() = true;
    for (Timer* timer : liveTimers()) timer->setEnabled(false);
}

}  // namespace platform
