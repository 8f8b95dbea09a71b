#include "engine/focus_ring.h"

#include <algorithm>
#include <cmath>

namespace engine {

bool FocusRing::reveal() {
    if (shown_) return false;
    shown_ = true;
    return true;
}

int FocusRing::command(const std::vector<int>& offered) const {
    if (offered.empty()) return -1;
    const bool onOffer = std::find(offered.begin(), offered.end(), command_) != offered.end();
    return onOffer ? command_ : offered.front();
}

void FocusRing::tab(bool forward, const std::vector<int>& offered) {
    static const Zone order[] = {Zone::Tray, Zone::Grid, Zone::Commands};
    int i = static_cast<int>(zone_);
    do {
        i = (i + (forward ? 1 : 2)) % 3;
    } while (order[i] == Zone::Commands && offered.empty());
    zone_ = order[i];
    if (zone_ == Zone::Commands) command_ = command(offered);
}

void FocusRing::arrow(Arrow arrow, const std::vector<int>& offered) {
    switch (zone_) {
        case Zone::Tray:
            trayArrow(arrow);
            break;
        case Zone::Grid:
            gridArrow(arrow);
            break;
        case Zone::Commands: {
            if (offered.empty()) return;
            // The commands are one list, walked either way round.
            const int count = static_cast<int>(offered.size());
            const int at = static_cast<int>(
                std::find(offered.begin(), offered.end(), command(offered)) - offered.begin());
            const int step = arrow == Arrow::Left || arrow == Arrow::Up ? count - 1 : 1;
            command_ = offered[(at + step) % count];
            break;
        }
    }
}

void FocusRing::trayArrow(Arrow arrow) {
    const int columns = layout_.trayColumns, slots = layout_.n * layout_.n;
    const int column = slot_ % columns;
    switch (arrow) {
        case Arrow::Left:
            if (column > 0) --slot_;
            break;
        case Arrow::Right:
            if (column < columns - 1 && slot_ + 1 < slots) ++slot_;
            break;
        case Arrow::Up:
            if (slot_ >= columns) slot_ -= columns;
            break;
        case Arrow::Down:
            if (slot_ + columns < slots) {
                slot_ += columns;
            } else {  // nothing below in the tray: on into the grid's top row
                zone_ = Zone::Grid;
                cell_ = nearest(layout_.gridColumnCentres, layout_.trayColumnCentres[column]);
            }
            break;
    }
}

void FocusRing::gridArrow(Arrow arrow) {
    const int n = layout_.n, x = cell_ % n, y = cell_ / n;
    switch (arrow) {
        case Arrow::Left:
            if (x > 0) --cell_;
            break;
        case Arrow::Right:
            if (x < n - 1) ++cell_;
            break;
        case Arrow::Down:
            if (y < n - 1) cell_ += n;
            break;
        case Arrow::Up:
            if (y > 0) {
                cell_ -= n;
            } else {  // up from the top row: the lowest tray slot of the nearest column
                const int columns = layout_.trayColumns, slots = n * n;
                const int column = nearest(layout_.trayColumnCentres, layout_.gridColumnCentres[x]);
                zone_ = Zone::Tray;
                slot_ = column + (slots - 1 - column) / columns * columns;
            }
            break;
    }
}

int FocusRing::nearest(const std::vector<float>& centres, float x) {
    int best = 0;
    for (int i = 1; i < static_cast<int>(centres.size()); ++i) {
        if (std::fabs(centres[i] - x) < std::fabs(centres[best] - x)) best = i;
    }
    return best;
}

}  // namespace engine
