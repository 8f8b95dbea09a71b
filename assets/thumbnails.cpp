#include "thumbnails.h"

namespace assets {

SquareDrawer collage(const std::vector<SquareDrawer>& pictures) {
    return [pictures](QPainter& painter) {
        painter.fillRect(QRectF(0, 0, 100, 100), QColor(250, 250, 252));
        const double gap = 3;
        const double side = (100 - 3 * gap) / 2;
        for (size_t k = 0; k < pictures.size() && k < 4; ++k) {
            const QRectF cell(gap + (k % 2) * (side + gap), gap + (k / 2) * (side + gap), side,
                              side);
            QPainterPath rounded;
            rounded.addRoundedRect(cell, 6, 6);
            painter.save();
            painter.setClipPath(rounded);
            painter.translate(cell.topLeft());
            painter.scale(side / 100, side / 100);
            pictures[k](painter);
            painter.restore();
            painter.setPen(QPen(QColor(0, 0, 0, 50), 0.6));
            painter.setBrush(Qt::NoBrush);
            painter.drawPath(rounded);
        }
    };
}

}  // namespace assets
