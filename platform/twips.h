#pragma once
// Screens are laid out in twips: 1440 to the inch, 15 to the pixel at 96 dpi.
// Positions are kept as single-precision twips so that copying one control's
// position onto another gives exact equality; pixels are derived from them.
#include <cmath>

namespace platform {

constexpr float kTwipsPerPixel = 15.0f;

inline int toPixels(float twips) {
    return static_cast<int>(std::lround(twips / kTwipsPerPixel));
}
inline float toTwips(double pixels) {
    return static_cast<float>(pixels * kTwipsPerPixel);
}

// Font sizes are given in points; at 96 dpi a point is 4/3 of a pixel.
inline int pointsToPixels(double points) {
    return static_cast<int>(std::lround(points * 96.0 / 72.0));
}

}  // namespace platform
