#pragma once
// A walk through every screen of the game in a fixed order, driven the way a
// player drives it: clicking controls found by their captions (in English;
// a translated control is found by the translation of the caption). At each
// state worth seeing the walk stops and hands the screen to `stop`.
#include <QString>
#include <functional>

#include "tables/screens.h"

namespace screen_tour {

using Stop = std::function<void(tables::Screen screen, const QString& what)>;

struct Walk {
    Stop stop;
    bool everyPictureSet = true;  // a stop on each picture set of the 4x4 board
};

// Starts at the title screen, which must not be loaded, and ends on it again
// after the options screen's "Exit". The game folder's Images and wav must be
// in the working directory.
void walk(const Walk& walk);

// Lets posted events and deferred deletes run, so a screen has settled.
void settle();

}  // namespace screen_tour
