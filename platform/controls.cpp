#include "platform/controls.h"

#include <QFontDatabase>
#include <QPainter>
#include <QSet>
#include <algorithm>

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

OptionButton::OptionButton(QWidget* parent) : Placed<QRadioButton>(parent) {
    QObject::connect(this, &QRadioButton::toggled, [this](bool on) {
        if (on && onSelect) onSelect();
    });
}

CheckBox::CheckBox(QWidget* parent) : Placed<QCheckBox>(parent) {
    QObject::connect(this, &QCheckBox::toggled, [this](bool) {
        if (onChange) onChange();
    });
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
