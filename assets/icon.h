#pragma once
// The game's icon: a little 4x4-style board in its four coloured quarters,
// each holding one of the game's shapes. Drawn as PNG at the menu sizes and
// written as SVG from the same layers, so both look alike.
#include <QByteArray>
#include <QImage>
#include <vector>

namespace assets {

// The sizes the desktop's icon theme asks for, in pixels.
const std::vector<int>& iconSides();

QImage renderIcon(int side);
QByteArray iconSvg();

}  // namespace assets
