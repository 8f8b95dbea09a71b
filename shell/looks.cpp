#include "shell/looks.h"

#include <QPalette>

#include "platform/accessible.h"

namespace shell {

QColor yellow() {
    return QColor(255, 255, 0);
}

QColor blue() {
    return QColor(0, 0, 255);
}

platform::LabelLook buttonLook(const QFont& font, const QColor& ground) {
    platform::LabelLook look;
    look.foreColor = yellow();
    look.backColor = ground;
    look.framed = true;
    look.alignment = Qt::AlignHCenter;
    look.font = font;
    return look;
}

platform::LabelLook blueTextLook(const QFont& font, Qt::Alignment alignment, bool wordWrap) {
    platform::LabelLook look;
    look.foreColor = blue();
    look.transparent = true;
    look.alignment = alignment;
    look.font = font;
    look.wordWrap = wordWrap;
    return look;
}

platform::Label* makeLabel(QWidget* parent, float left, float top, float width, float height,
                           const std::string& caption, const platform::LabelLook& look) {
    auto* label = new platform::Label(parent);
    label->setBounds(left, top, width, height);
    label->setLook(look);
    label->setCaption(caption);
    return label;
}

platform::PictureBox* makePictureBox(QWidget* parent, float left, float top,
                                     const tables::ScreenPicture& picture) {
    auto* box = new platform::PictureBox(parent);
    box->setBounds(left, top, picture.width, picture.height);
    // The screens' pictures (logos, mascots, the rules' examples) only
    // decorate: every word they carry stands in a label beside them.
    platform::setDecorative(*box);
    return box;
}

void styleBlueOnWhite(QWidget& control, const QFont& font) {
    platform::styleText(control, blue(), Qt::white, font);
}

}  // namespace shell
