#pragma once
// The two looks the title, options and rules screens share: button-like
// labels (yellow text on a coloured ground with a single border) and blue
// texts on white.
#include <QColor>
#include <QString>
#include <string>

#include "platform/controls.h"
#include "tables/pictures.h"

namespace shell {

// The publisher's page, opened by the options screen's address label and
// headings.
inline constexpr char kPublisherPage[] = "https://pimbalo.example.org/";

QColor yellow();
QColor blue();

// Yellow text centred on `ground` with a single border.
platform::LabelLook buttonLook(const QFont& font, const QColor& ground = Qt::black);

// Blue text on a transparent background.
platform::LabelLook blueTextLook(const QFont& font, Qt::Alignment alignment = Qt::AlignHCenter,
                                 bool wordWrap = false);

// A label placed and dressed in one go.
platform::Label* makeLabel(QWidget* parent, float left, float top, float width, float height,
                           const std::string& caption, const platform::LabelLook& look);

// A picture box of the size of the picture it is designed to show.
platform::PictureBox* makePictureBox(QWidget* parent, float left, float top,
                                     const tables::ScreenPicture& picture);

// Option buttons and check boxes: blue text on white.
void styleBlueOnWhite(QWidget& control, const QFont& font);

}  // namespace shell
