#pragma once
// The hand pointer shown over pieces and command labels, as a Windows cursor
// file: one 32 x 32 image, 32-bit colour with alpha plus the AND mask.
#include <QByteArray>
#include <QImage>
#include <QPainterPath>
#include <QPoint>
#include <vector>

namespace assets {

constexpr int kCursorSide = 32;
// Where the pointer's click lands: the tip of the index finger.
constexpr QPoint kHandHotSpot(10, 1);

// The hand in cursor pixels, as the parts it is drawn from, back to front;
// the artwork draws the same hand larger.
std::vector<QPainterPath> handParts();
QImage handPointer();
QByteArray curFile(const QImage& image, QPoint hotSpot);

}  // namespace assets
