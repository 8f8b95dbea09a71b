#include "platform/timer.h"

namespace platform {

Timer::Timer(QObject* owner, int intervalMs) : timer_(new QTimer(owner)) {
    timer_->setInterval(intervalMs);
    timer_->setTimerType(Qt::PreciseTimer);
    QObject::connect(timer_, &QTimer::timeout, timer_, [this] {
        if (onTimer) onTimer();
    });
}

void Timer::setEnabled(bool on) {
    if (on && !timer_->isActive()) timer_->start();
    if (!on) timer_->stop();
}

}  // namespace platform
