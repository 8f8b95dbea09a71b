#pragma once
// The two procedures every screen shares.
#include <string>

namespace platform {
class Form;
}

namespace shell {

// Plays a WAV file in the background. Callers test playsound first.
void playwav(const std::string& file);

// Gives a full-size screen its standard size (15360 x 11520 twips, 1024 x 768
// pixels) and centres it on the screen; a screen smaller than that leaves the
// window overhanging every edge equally.
void placeform(platform::Form& screen);

}  // namespace shell
