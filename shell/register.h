#pragma once
// Makes the title, backdrop, options and rules screens known to the screen
// model; the program (and the tests) call this once before showing any.

namespace shell {

void registerScreens();

}  // namespace shell
