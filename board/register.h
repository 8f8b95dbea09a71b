#pragma once
// Makes the three board screens known to the screen model: "jigsaw" (4x4),
// "jigsaw5x5" and "jigsaw6x6". The game and the tests call this once.
namespace board {

void registerScreens();

}  // namespace board
