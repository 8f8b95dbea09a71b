// A double-click is one click. Young players double-click everything; were
// the second click a click, "New Puzzle" would deal twice, "Change Pictures"
// would show the picture sets and hide them again, and a box would tick and
// clear. Qt sends a double-click as press, release, double-click, release:
// the double-click and the release after it are kept here from every widget
// of the program, the windows' own click handling included.
//
// Held and dragged, the second press is a drag like any other: once the
// pointer has gone a drag distance from it, a control that takes presses of
// its own (a piece) gets the press, where it was made, and the moves and the
// release after it. Other controls get nothing of it, so a shaky double-click
// on a command or a box is still one click.
//
// Touch needs little of its own: Qt turns the first finger into the mouse (a
// tap is a click, two quick taps on one spot a double-click) and leaves out
// every other finger, so a second finger during a drag neither drags nor
// drops.
#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QStyleHints>
#include <cmath>
#include <optional>

#include "platform/controls.h"

namespace platform {
namespace {

class OneClick : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* watched, QEvent* e) override;

  private:
    // The second press of a double-click, while its button is held.
    // Kept by value: an event's point is the device's, which moves on.
    struct SecondPress {
        QPointer<QWidget> control;
        QPointF local, scene, global;
        Qt::MouseButton button;
        Qt::MouseButtons buttons;
        Qt::KeyboardModifiers modifiers;
        const QPointingDevice* device;
        bool dragging = false;
    };

    static bool keep(QEvent* e) {
        e->accept();
        return true;
    }
    bool moved(QMouseEvent& e);
    bool released(QMouseEvent& e);

    bool farFromLastPress(const QMouseEvent& e) const;

    QPointF lastPress_;
    std::optional<SecondPress> second_;
    bool delivering_ = false;  // the late press, handed on by this filter
};

bool takesPresses(QWidget* control) {
    const auto* target = dynamic_cast<PointerTarget*>(control);
    return target && (target->on.mouseDown || target->on.mouseUp);
}

bool OneClick::eventFilter(QObject* watched, QEvent* e) {
    if (delivering_ || !watched->isWidgetType()) return false;
    switch (e->type()) {
        case QEvent::MouseButtonPress:
            lastPress_ = static_cast<QMouseEvent*>(e)->globalPosition();
            return false;
        case QEvent::MouseButtonDblClick: {
            const auto* m = static_cast<QMouseEvent*>(e);
            if (farFromLastPress(*m)) return false;  // a press of its own
            second_ = SecondPress{static_cast<QWidget*>(watched),
                                  m->position(),
                                  m->scenePosition(),
                                  m->globalPosition(),
                                  m->button(),
                                  m->buttons(),
                                  m->modifiers(),
                                  m->pointingDevice()};
            return keep(e);
        }
        case QEvent::MouseMove:
            return second_ && moved(*static_cast<QMouseEvent*>(e));
        case QEvent::MouseButtonRelease:
            return second_ && released(*static_cast<QMouseEvent*>(e));
        default:
            return false;
    }
}

// Qt forgets a double-click's first press once the pointer has moved away
// from it, but between two taps it measures from where the mouse last
// pressed, not the finger: a tap on a piece and a quick tap on the cell the
// mouse last clicked would come as a double-click.
bool OneClick::farFromLastPress(const QMouseEvent& e) const {
    const QStyleHints& hints = *QGuiApplication::styleHints();
    const bool touch = e.device() && e.device()->type() == QInputDevice::DeviceType::TouchScreen;
    const int near = touch ? hints.touchDoubleTapDistance() : hints.mouseDoubleClickDistance();
    const QPointF away = e.globalPosition() - lastPress_;
    return std::abs(away.x()) > near || std::abs(away.y()) > near;
}

bool OneClick::moved(QMouseEvent& e) {
    if (second_->dragging) return false;
    const SecondPress& p = *second_;
    if (!(e.buttons() & p.button)) {  // its release went elsewhere
        second_.reset();
        return false;
    }
    if ((e.globalPosition() - p.global).manhattanLength() < QApplication::startDragDistance() ||
        !p.control || !takesPresses(p.control))
        return keep(&e);
    second_->dragging = true;
    QMouseEvent press(QEvent::MouseButtonPress, p.local, p.scene, p.global, p.button, p.buttons,
                      p.modifiers, p.device);
    delivering_ = true;
    QCoreApplication::sendEvent(p.control, &press);
    delivering_ = false;
    return false;  // this move is the drag's first
}

bool OneClick::released(QMouseEvent& e) {
    if (e.button() != second_->button) return false;
    const bool dragged = second_->dragging;
    second_.reset();
    return dragged ? false : keep(&e);
}

// One for the whole program; a program that makes a new application (a test)
// gets a new one with it.
QPointer<OneClick>& filter() {
    static QPointer<OneClick> theFilter;
    return theFilter;
}

}  // namespace

void keepDoubleClicksSingle() {
    if (filter() || !qApp) return;
    filter() = new OneClick(qApp);
    qApp->installEventFilter(filter());
}

}  // namespace platform
