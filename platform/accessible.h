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
    // The game's own keyboard ring can stand on the control (Qt's focus
    // never does): it can take the focus announceFocus gives.
    bool ringVisits = false;
};

void setAccessibleText(QWidget& control, AccessibleText text);

// A picture that only decorates its screen (a logo, a mascot, a marker the
// names already tell of): assistive technology never hears of it.
void setDecorative(QWidget& control);
bool isDecorative(const QObject* control);

// Tells assistive technology that the game's keyboard ring now stands on the
// control, which has the focus from now on (nullptr: the ring stands on
// nothing). A control the player cannot reach takes no focus.
void announceFocus(QWidget* control);
// Tells assistive technology that what the control says has changed.
void announceNameChange(QWidget& control);
// Sees every announcement above, whether assistive technology listens or not
// (tests listen here).
void setAnnouncementObserver(std::function<void(QAccessible::Event, QObject*)> observer);

// Whether the player can reach the control at all: shown, on a shown screen,
// and enabled. Nothing else may press or focus it.
bool takesInput(const QWidget& control);

}  // namespace platform
