#pragma once
// What assistive technology (screen readers and the like) learns about a
// control: its role, a name and a description read afresh every time they
// are asked for, so they follow the game (a clock that ticks, a cell whose
// picture changes), and for buttons the action a press runs.
#include <QAccessible>
#include <QString>
#include <QWidget>
#include <functional>

namespace platform {

struct AccessibleText {
    QAccessible::Role role = QAccessible::StaticText;
    std::function<QString()> name;
    std::function<QString()> description;
    std::function<void()> press;    // the default action of a button, if any
    std::function<bool()> checked;  // for check boxes and option buttons
};

void setAccessibleText(QWidget& control, AccessibleText text);

// Whether the player can reach the control at all: shown, on a shown screen,
// and enabled. Nothing else may press or focus it.
bool takesInput(const QWidget& control);

}  // namespace platform
