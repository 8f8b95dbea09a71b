#include "platform/accessible.h"

#include <QAccessibleWidget>
#include <map>

namespace platform {
namespace {

std::map<const QObject*, AccessibleText>& described() {
    static std::map<const QObject*, AccessibleText> texts;
    return texts;
}

class DescribedControl : public QAccessibleWidget {
  public:
    DescribedControl(QWidget* control, const AccessibleText& text)
        : QAccessibleWidget(control, text.role), text_(text) {}

    QString text(QAccessible::Text t) const override {
        if (t == QAccessible::Name && text_.name) return text_.name();
        if (t == QAccessible::Description && text_.description) return text_.description();
        return QAccessibleWidget::text(t);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
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

QAccessibleInterface* describedFactory(const QString&, QObject* object) {
    auto it = described().find(object);
    if (it == described().end()) return nullptr;
    return new DescribedControl(static_cast<QWidget*>(object), it->second);
}

}  // namespace

bool takesInput(const QWidget& control) {
    return control.isVisible() && control.isEnabled();
}

void setAccessibleText(QWidget& control, AccessibleText text) {
    static const bool installed = (QAccessible::installFactory(describedFactory), true);
    (void)installed;
    described()[&control] = std::move(text);
    QObject::connect(&control, &QObject::destroyed,
                     [object = static_cast<QObject*>(&control)] { described().erase(object); });
    // Qt keeps the first interface made for a control (a label makes one as
    // soon as its caption is set while a screen reader listens): replace it.
    QAccessibleInterface* made = QAccessible::queryAccessibleInterface(&control);
    if (made && !dynamic_cast<DescribedControl*>(made))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(made));
}

}  // namespace platform
