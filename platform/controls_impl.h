#pragma once
// Pointer handling of Clickable, kept out of the class for readability.
#include <QMouseEvent>

namespace platform {

template <class Widget>
void Clickable<Widget>::mousePressEvent(QMouseEvent* e) {
    if (on.mouseDown)
        on.mouseDown(buttonState(e->buttons()), shiftState(e->modifiers()),
                     toTwips(e->position().x()), toTwips(e->position().y()));
    e->accept();
}

template <class Widget>
void Clickable<Widget>::mouseMoveEvent(QMouseEvent* e) {
    if (on.mouseMove)
        on.mouseMove(buttonState(e->buttons()), shiftState(e->modifiers()),
                     toTwips(e->position().x()), toTwips(e->position().y()));
    e->accept();
}

template <class Widget>
void Clickable<Widget>::mouseReleaseEvent(QMouseEvent* e) {
    // Handlers may hide or unload the screen; keep what the click test needs.
    const bool inside = this->rect().contains(e->position().toPoint());
    const bool left = e->button() == Qt::LeftButton;
    if (on.mouseUp)
        on.mouseUp(buttonState(e->button()), shiftState(e->modifiers()), toTwips(e->position().x()),
                   toTwips(e->position().y()));
    if (left && inside && on.click) on.click();
    e->accept();
}

}  // namespace platform
