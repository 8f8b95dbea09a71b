#pragma once
// What the game asks of the desktop: the screen's size, the whole-screen busy
// pointer, and opening a web page in the user's browser.
#include <string>

namespace platform {

float screenWidthTwips();
float screenHeightTwips();
void setBusyPointer(bool busy);
// Asks the desktop to open the address; failures are ignored.
void openWebPage(const std::string& address);

}  // namespace platform
