#include "board/marks.h"

#include <QPainter>

namespace board {
namespace {

// The pick is a band just inside the piece (it never covers a neighbour in
// the close-packed tray); the ring lies just outside its control, so both
// show when the ring stands on the picked piece.
constexpr int kPickBand = 8;
constexpr int kRingBand = 6;
constexpr int kRingGap = 1;
const QColor kPickColour(255, 214, 0);  // a warm yellow between two dark lines
const QColor kRingColour(255, 255, 255);
const QColor kEdgeColour(0, 0, 0);

// A band of the given width just inside `outer`: a light line between two
// dark ones, drawn a pixel ring at a time so what lies inside still shows.
void drawBand(QPainter& p, const QRect& outer, int width, const QColor& light) {
    for (int i = 0; i < width; ++i) {
        p.setPen(i == 0 || i == width - 1 ? kEdgeColour : light);
        p.drawRect(outer.adjusted(i, i, -i - 1, -i - 1));
    }
}

}  // namespace

Mark::Mark(QWidget* board, Kind kind) : QWidget(board), kind_(kind) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

int Mark::outside() const {
    return kind_ == Kind::Pick ? 0 : kRingBand + kRingGap;
}

void Mark::showAround(const std::optional<QRect>& control) {
    if (!control) {
        hide();
        return;
    }
    const int m = outside();
    setGeometry(control->adjusted(-m, -m, m, m));
    if (isHidden()) {
        show();
        raise();
    }
}

std::optional<QRect> Mark::marked() const {
    if (isHidden()) return std::nullopt;
    const int m = outside();
    return geometry().adjusted(m, m, -m, -m);
}

void Mark::keepOnTop() {
    if (!isHidden()) raise();
}

void Mark::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (kind_ == Kind::Pick)
        drawBand(p, rect(), kPickBand, kPickColour);
    else
        drawBand(p, rect(), kRingBand, kRingColour);
}

}  // namespace board
