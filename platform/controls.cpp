#include "platform/controls.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QPainter>
#include <QSet>
#include <QStyle>
#include <QStyleOptionButton>
#include <QValidator>
#include <algorithm>

#include "platform/accessible.h"
#include "platform/files.h"
#include "platform/translation.h"

namespace platform {

QColor bgr(std::uint32_t value) {
    return QColor(value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF);
}

QFont designFont(const QString& family, double points, bool bold) {
    QFont font;
    QStringList families{family};
    if (family.startsWith(QLatin1String("Arial"))) families << QStringLiteral("Liberation Sans");
    families << QStringLiteral("DejaVu Sans");
    font.setFamilies(families);
    font.setPixelSize(pointsToPixels(points));
    font.setBold(bold);
    font.setStyleStrategy(QFont::PreferAntialias);
    return font;
}

void settleFonts(QWidget& window) {
    static const QSet<QString> installed = [] {
        QSet<QString> names;
        for (const QString& family : QFontDatabase::families()) names.insert(family.toLower());
        return names;
    }();
    for (QWidget* control : window.findChildren<QWidget*>()) {
        if (!control->testAttribute(Qt::WA_SetFont)) continue;
        const QStringList families = control->font().families();
        const auto found = std::find_if(families.begin(), families.end(), [](const QString& f) {
            return installed.contains(f.toLower());
        });
        // With none of them installed the font system's own choice remains.
        if (found == families.end() || families.size() == 1) continue;
        QFont font = control->font();
        font.setFamilies({*found});
        control->setFont(font);
    }
}

int buttonState(Qt::MouseButtons buttons) {
    int state = 0;
    if (buttons & Qt::LeftButton) state |= 1;
    if (buttons & Qt::RightButton) state |= 2;
    if (buttons & Qt::MiddleButton) state |= 4;
    return state;
}

int shiftState(Qt::KeyboardModifiers modifiers) {
    int state = 0;
    if (modifiers & Qt::ShiftModifier) state |= 1;
    if (modifiers & Qt::ControlModifier) state |= 2;
    if (modifiers & Qt::AltModifier) state |= 4;
    return state;
}

namespace {

class CharacterLimit : public QValidator {
  public:
    CharacterLimit(int most, QObject* parent) : QValidator(parent), most_(most) {}
    State validate(QString& text, int&) const override {
        const qsizetype pairs =
            std::count_if(text.begin(), text.end(), [](QChar c) { return c.isLowSurrogate(); });
        return text.size() - pairs <= most_ ? Acceptable : Invalid;
    }

  private:
    int most_;
};

}  // namespace

void TextBox::setMaxCharacters(int most) {
    setValidator(new CharacterLimit(most, this));
}

void PictureBox::loadPicture(const std::string& relativePath) {
    setPicture(platform::loadPicture(relativePath, size()));
}

void PictureBox::setPicture(const QPixmap& picture) {
    picture_ = picture;
    update();
}

void PictureBox::setFramed(bool framed) {
    framed_ = framed;
    update();
}

void PictureBox::setFrameColor(const QColor& color) {
    frameColor_ = color;
    update();
}

PictureBox* PictureBox::cloneHidden() const {
    auto* copy = new PictureBox(parentWidget());
    copy->hide();
    copy->setBounds(Left(), Top(), Width(), Height());
    copy->picture_ = picture_;
    copy->framed_ = framed_;
    copy->frameColor_ = frameColor_;
    // A pointer of element 0's own goes with the copy; otherwise the copy, like
    // element 0, shows the window's pointer whenever it changes.
    if (testAttribute(Qt::WA_SetCursor)) copy->setCursor(cursor());
    return copy;
}

void PictureBox::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (!picture_.isNull()) {
        p.setRenderHint(QPainter::SmoothPixmapTransform);
        p.drawPixmap(rect(), picture_);
    }
    if (framed_) {
        p.setPen(QPen(frameColor_, 1));
        p.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void Label::setCaption(const std::string& text) {
    setCaption(text, translatedFor(*this, QString::fromStdString(text)));
}

void Label::setCaption(const std::string& text, const QString& shown) {
    caption_ = text;
    shown_ = shown;
    setText(shown);
}

std::string Label::Caption() const {
    return text() == shown_ ? caption_ : text().toStdString();
}

void Label::setLook(const LabelLook& look) {
    look_ = look;
    setFont(look.font);
    setAlignment(look.alignment | Qt::AlignTop);
    setWordWrap(look.wordWrap);
    setIndent(0);  // a framed label would otherwise push its caption down
    setFrameStyle(look.framed ? (QFrame::Box | QFrame::Plain) : QFrame::NoFrame);
    setLineWidth(1);
    setAutoFillBackground(!look.transparent);
    setForeColor(look.foreColor);
    setBackColor(look.backColor);
}

namespace {

// The keys that run a focused command or flip a focused box, as a click would.
bool isPressKey(const QKeyEvent& e) {
    const int key = e.key();
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool plainKey(const QKeyEvent& e) {
    return !(e.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

// Just inside a framed label's one-pixel border: the band's lines, dark,
// light, light, dark, from the outside in.
constexpr int kFocusInset = 1;
constexpr int kFocusBand = 4;

}  // namespace

void drawFocusBand(QPainter& painter, const QRect& outer) {
    for (int i = 0; i < kFocusBand; ++i) {
        painter.setPen(i == 0 || i == kFocusBand - 1 ? Qt::black : Qt::white);
        painter.drawRect(outer.adjusted(i, i, -i - 1, -i - 1));
    }
}

void Label::makeCommand(CommandFocus focus, std::function<QString()> description) {
    command_ = true;
    // A screen that hands the focus over keeps Qt from giving it by Tab or
    // when the window comes up; it can still set it.
    setFocusPolicy(focus == CommandFocus::ByTab ? Qt::TabFocus : Qt::NoFocus);
    setAccessibleText(*this, {QAccessible::Button,
                              [this] { return text(); },
                              std::move(description),
                              [this] {
                                  if (on.click) on.click();
                              },
                              {}});
}

void Label::keyPressEvent(QKeyEvent* e) {
    if (command_ && plainKey(*e) && isPressKey(*e) && !e->isAutoRepeat()) {
        e->accept();
        if (on.click) on.click();  // may unload the screen: nothing after this
        return;
    }
    QLabel::keyPressEvent(e);
}

void Label::focusInEvent(QFocusEvent* e) {
    QLabel::focusInEvent(e);
    update();
}

void Label::focusOutEvent(QFocusEvent* e) {
    QLabel::focusOutEvent(e);
    update();
}

namespace {

// The style's own focus frame shows only once Tab was pressed in the window;
// the game's band shows from the moment a screen opens.
void paintFocus(QWidget& control, const QRect& around) {
    if (!control.hasFocus()) return;
    QPainter painter(&control);
    drawFocusBand(painter, around);
}

// Round a box's caption, leaving its indicator clear.
template <class Button>
QRect captionArea(Button& button, QStyle::SubElement contents) {
    QStyleOptionButton option;
    option.initFrom(&button);
    // The band lies in the gap before the caption, which starts at the area's edge.
    return button.style()
               ->subElementRect(contents, &option, &button)
               .adjusted(-kFocusBand, 0, 0, 0) &
           button.rect();
}

}  // namespace

void Label::paintEvent(QPaintEvent* e) {
    QLabel::paintEvent(e);
    if (command_ && (focusPolicy() & Qt::TabFocus))
        paintFocus(*this, rect().adjusted(kFocusInset, kFocusInset, -kFocusInset, -kFocusInset));
}

void Label::setForeColor(const QColor& c) {
    look_.foreColor = c;
    QPalette pal = palette();
    pal.setColor(QPalette::WindowText, c);
    setPalette(pal);
}

void Label::setBackColor(const QColor& c) {
    look_.backColor = c;
    QPalette pal = palette();
    pal.setColor(QPalette::Window, c);
    setPalette(pal);
}

Shape::Shape(QWidget* parent, const QColor& fill) : Placed<QWidget>(parent), fill_(fill) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Shape::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), fill_);
}

Frame::Frame(QWidget* parent) : Placed<QFrame>(parent) {
    setAutoFillBackground(true);
    setFrameStyle(QFrame::NoFrame);
}

void Frame::setBackColor(const QColor& c) {
    back_ = c;
    QPalette pal = palette();
    pal.setColor(QPalette::Window, c);
    setPalette(pal);
}

// Named by its caption and pressed like a click, and only while the player
// can reach it: Qt's own buttons would let a hidden box be ticked.
static void describeButton(QAbstractButton& button, QAccessible::Role role) {
    setAccessibleText(button, {role,
                               [&button] { return button.text(); },
                               {},
                               [&button] { button.click(); },
                               [&button] { return button.isChecked(); }});
}

// Enter selects or ticks a box as Space does; true when it took the key.
static bool enterClicks(QAbstractButton& button, QKeyEvent& e) {
    if (!plainKey(e) || (e.key() != Qt::Key_Return && e.key() != Qt::Key_Enter)) return false;
    e.accept();
    if (!e.isAutoRepeat()) button.click();
    return true;
}

OptionButton::OptionButton(QWidget* parent) : Placed<QRadioButton>(parent) {
    QObject::connect(this, &QRadioButton::toggled, [this](bool on) {
        if (on && onSelect) onSelect();
    });
    describeButton(*this, QAccessible::RadioButton);
}

void OptionButton::keyPressEvent(QKeyEvent* e) {
    if (!enterClicks(*this, *e)) QRadioButton::keyPressEvent(e);
}

void OptionButton::paintEvent(QPaintEvent* e) {
    QRadioButton::paintEvent(e);
    paintFocus(*this, captionArea(*this, QStyle::SE_RadioButtonContents));
}

CheckBox::CheckBox(QWidget* parent) : Placed<QCheckBox>(parent) {
    QObject::connect(this, &QCheckBox::toggled, [this](bool) {
        if (onChange) onChange();
    });
    describeButton(*this, QAccessible::CheckBox);
}

void CheckBox::keyPressEvent(QKeyEvent* e) {
    if (!enterClicks(*this, *e)) QCheckBox::keyPressEvent(e);
}

void CheckBox::paintEvent(QPaintEvent* e) {
    QCheckBox::paintEvent(e);
    paintFocus(*this, captionArea(*this, QStyle::SE_CheckBoxContents));
}

void styleText(QWidget& w, const QColor& fore, const QColor& back, const QFont& font) {
    w.setFont(font);
    QPalette pal = w.palette();
    pal.setColor(QPalette::WindowText, fore);
    pal.setColor(QPalette::ButtonText, fore);
    pal.setColor(QPalette::Text, fore);
    pal.setColor(QPalette::Window, back);
    pal.setColor(QPalette::Button, back);
    pal.setColor(QPalette::Base, back);
    w.setPalette(pal);
    w.setAutoFillBackground(true);
}

}  // namespace platform
