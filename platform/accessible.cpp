#include "platform/accessible.h"

#include <QAccessibleWidget>
#include <QPointer>
#include <map>

namespace platform {
namespace {

constexpr char kDecorative[] = "pimbaloDecorative";

// Where the game's keyboard ring stands, as announced.
QPointer<QWidget>& ringFocus() {
    static QPointer<QWidget> focus;
    return focus;
}

std::map<const QObject*, AccessibleText>& described() {
    static std::map<const QObject*, AccessibleText> texts;
    return texts;
}

// A control as assistive technology sees it: the children that decorate it
// are left out of the list of its children.
class ShownControl : public QAccessibleWidget {
  public:
    using QAccessibleWidget::QAccessibleWidget;

    int childCount() const override { return static_cast<int>(shownChildren().size()); }
    QAccessibleInterface* child(int index) const override {
        const auto shown = shownChildren();
        return index >= 0 && index < shown.size() ? shown[index] : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return static_cast<int>(shownChildren().indexOf(const_cast<QAccessibleInterface*>(child)));
    }

  private:
    QList<QAccessibleInterface*> shownChildren() const {
        QList<QAccessibleInterface*> shown;
        for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
            QAccessibleInterface* child = QAccessibleWidget::child(i);
            if (child && !isDecorative(child->object())) shown.append(child);
        }
        return shown;
    }
};

class DescribedControl : public ShownControl {
  public:
    DescribedControl(QWidget* control, const AccessibleText& text)
        : ShownControl(control, text.role), text_(text) {}

    QString text(QAccessible::Text t) const override {
        if (t == QAccessible::Name && text_.name) return text_.name();
        if (t == QAccessible::Description && text_.description) return text_.description();
        return QAccessibleWidget::text(t);
    }
    // The ring is the keyboard focus of what it visits; a control the player
    // cannot reach can have neither.
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        if (text_.ringVisits) state.focusable = takesInput(*widget());
        // As with Qt's focus, only in the window that has the keyboard.
        if (widget() == ringFocus())
            state.focused = takesInput(*widget()) && widget()->isActiveWindow();
        if (text_.checked) {
            state.checkable = true;
            state.checked = text_.checked();
        }
        return state;
    }
    // A hidden or disabled command is not there for the player: it cannot be
    // pressed or focused this way either. Pressing comes first, as screen
    // readers run the first action.
    QStringList actionNames() const override {
        if (!takesInput(*widget())) return {};
        QStringList names = QAccessibleWidget::actionNames();
        if (text_.press) names.prepend(pressAction());
        return names;
    }
    void doAction(const QString& action) override {
        if (!takesInput(*widget())) return;
        if (text_.press && action == pressAction())
            text_.press();
        else
            QAccessibleWidget::doAction(action);
    }

  private:
    const AccessibleText& text_;  // lives in described() as long as the control
};

bool hasDecorativeChild(const QObject* object) {
    for (const QObject* child : object->children())
        if (isDecorative(child)) return true;
    return false;
}

QAccessibleInterface* describedFactory(const QString&, QObject* object) {
    if (!object || !object->isWidgetType()) return nullptr;
    auto* widget = static_cast<QWidget*>(object);
    if (auto it = described().find(object); it != described().end())
        return new DescribedControl(widget, it->second);
    if (hasDecorativeChild(object))
        return new ShownControl(widget,
                                widget->isWindow() ? QAccessible::Window : QAccessible::Client);
    return nullptr;
}

void installFactory() {
    static const bool installed = (QAccessible::installFactory(describedFactory), true);
    (void)installed;
}

// Qt keeps the first interface made for a control (a label makes one as soon
// as its caption is set while a screen reader listens): one made before the
// control was described, or before a child of it was called decoration, is
// replaced by ours.
template <class Ours>
void forgetInterfaceUnlessOurs(QObject* control) {
    QAccessibleInterface* made = QAccessible::queryAccessibleInterface(control);
    if (made && !dynamic_cast<Ours*>(made))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(made));
}

std::function<void(QAccessible::Event, QObject*)>& announcementObserver() {
    static std::function<void(QAccessible::Event, QObject*)> observer;
    return observer;
}

void announce(QWidget& control, QAccessible::Event type) {
    if (announcementObserver()) announcementObserver()(type, &control);
    QAccessibleEvent event(&control, type);
    QAccessible::updateAccessibility(&event);
}

}  // namespace

bool takesInput(const QWidget& control) {
    return control.isVisible() && control.isEnabled();
}

void setAccessibleText(QWidget& control, AccessibleText text) {
    installFactory();
    described()[&control] = std::move(text);
    QObject::connect(&control, &QObject::destroyed,
                     [object = static_cast<QObject*>(&control)] { described().erase(object); });
    forgetInterfaceUnlessOurs<DescribedControl>(&control);
}

void setDecorative(QWidget& control) {
    installFactory();
    control.setProperty(kDecorative, true);
    if (QWidget* parent = control.parentWidget()) forgetInterfaceUnlessOurs<ShownControl>(parent);
}

bool isDecorative(const QObject* control) {
    return control && control->property(kDecorative).toBool();
}

void announceFocus(QWidget* control) {
    ringFocus() = control && takesInput(*control) ? control : nullptr;
    if (ringFocus()) announce(*control, QAccessible::Focus);
}

void announceNameChange(QWidget& control) {
    announce(control, QAccessible::NameChanged);
}

void setAnnouncementObserver(std::function<void(QAccessible::Event, QObject*)> observer) {
    announcementObserver() = std::move(observer);
}

}  // namespace platform
