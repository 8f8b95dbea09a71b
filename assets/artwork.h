#pragma once
// The game's own name drawn as a bright, bouncy logo, and its mascot.
#include <QPainter>

namespace assets {

// "Pimbalo" fitted into the box, centred.
void drawLogoWord(QPainter& painter, const QRectF& box);

// Pim, the mascot: a round, smiling fellow holding up a star, drawn to fill
// the box (tall boxes suit him best).
void drawMascot(QPainter& painter, const QRectF& box);

}  // namespace assets
