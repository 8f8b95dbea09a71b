#pragma once
// The spoken name of a picture, for assistive technology: "star", "die
// showing three", "flag of France".
#include <string>

#include "board/catalogue.h"

namespace board {

std::string pictureName(const PictureSet& set, int symbol);

}  // namespace board
