#pragma once
// Shared drawing helpers for the generated pictures: canvases, colours written
// the board's way (&H00BBGGRR&), soft shadows and the JPEG writer.
#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QString>
#include <cstdint>
#include <functional>

namespace assets {

// A colour written &H00BBGGRR& (red in the low byte).
QColor bgrColor(std::uint32_t bbggrr);

// Opaque white canvas with smooth rendering switched on by beginPainter().
QImage newCanvas(int width, int height, QColor fill = Qt::white);
void beginPainter(QPainter& painter, QImage& image);

// A drawer paints into a 100 x 100 square; paintSquare scales it to any size.
using SquareDrawer = std::function<void(QPainter&)>;
QImage paintSquare(int pixels, const SquareDrawer& draw);
// The same for a box of any aspect, in its own logical units.
QImage paintBox(int width, int height, double logicalWidth, double logicalHeight,
                const SquareDrawer& draw);

// A blurred, offset copy of the path's shape under it (drawn first).
void softShadow(QPainter& painter, const QPainterPath& shape, QPointF offset, double blur,
                QColor colour = QColor(0, 0, 0, 90));

// The light tile that most symbol pictures sit on: a soft vertical gradient
// between two tints of one colour, filling the square.
void tileBackground(QPainter& painter, QColor top, QColor bottom);

// Fill with a light-from-the-top-left gradient and outline in a darker tone.
void glossyFill(QPainter& painter, const QPainterPath& shape, QColor base, double outline);

QColor mix(QColor a, QColor b, double t);

// A closed path through `corners` points evenly around the centre, the first
// at startRadians, each at its own distance.
QPainterPath pathAround(QPointF centre, int corners, double startRadians,
                        const std::function<double(int)>& radius);

// A star of `points` points, the first pointing straight up.
QPainterPath starPath(QPointF centre, double outer, double inner, int points);

// JPEG at a fixed quality; creates missing folders. False on failure.
bool saveJpeg(const QImage& image, const QString& path);
bool ensureParentFolder(const QString& path);

}  // namespace assets
