#include "shell/titlefrm.h"

#include "platform/files.h"
#include "records/inf_files.h"
#include "shell/common.h"
#include "shell/looks.h"
#include "shell/module1.h"
#include "tables/pictures.h"
#include "tables/sounds.h"
#include "tables/texts.h"

namespace shell {

namespace {

// A picture the title screen can do without: a file that is missing or
// cannot be decoded fails the start-up quietly instead of ending the game.
bool loadOptionalPicture(platform::PictureBox& box, const std::string& path) {
    const auto picture = platform::tryLoadPicture(path, box.size());
    if (!picture) return false;
    box.setPicture(*picture);
    return true;
}

}  // namespace

Titlefrm::Titlefrm() : Form(kScreen, platform::FormKind::Fixed) {
    setClientSize(6510, 8250);

    Image1.wire = [this](int, platform::PictureBox& picture) {
        picture.on.click = [this] { leaveForOptions(); };
    };
    Image1.add(0, makePictureBox(this, 240, 120, tables::kTitlePicture));
    Image1.add(1, makePictureBox(this, 1440, 2760, tables::kOpeningPicture));
    Image2 = makePictureBox(this, 5220, 6240, tables::kTitleMascot);

    const auto button = buttonLook(platform::designFont("Arial Rounded MT Bold", 20.25, true));
    Label5 = makeLabel(this, 1560, 7080, 1575, 600, tables::title_text::kOk, button);
    Label5->on.click = [this] { leaveForOptions(); };
    Label7 = makeLabel(this, 3360, 7080, 1575, 600, tables::title_text::kExit, button);
    Label7->on.click = [] { platform::screens::endProgram(); };
    for (platform::Label* command : {Label5, Label7}) command->makeCommand();
    setCommandOrder({Label5, Label7});

    Label2 = makeLabel(this, 120, 7920, 6255, 255, tables::kLegalNotice,
                       blueTextLook(platform::designFont("Arial", 9, false)));
}

void Titlefrm::Form_Load() {
    module1().loadfailed = loadEverything() ? 0 : 1;
}

bool Titlefrm::loadEverything() {
    centreOnScreen();
    if (!loadPictures()) return false;

    // Options read before a failure keep their new values, the others stay.
    auto& shared = module1();
    return records::loadBoth(records::kLastGameFile, records::kHighscoreFile, shared, shared);
}

bool Titlefrm::loadPictures() {
    return loadOptionalPicture(Image1(0), tables::kTitlePicture.path) &&
           loadOptionalPicture(Image1(1), tables::kOpeningPicture.path) &&
           loadOptionalPicture(*Image2, tables::kTitleMascot.path);
}

void Titlefrm::leaveForOptions() {
    auto& shared = module1();
    shared.hidedesktop = 1;
    platform::screens::show(tables::Screen::Grey);
    platform::screens::show(tables::Screen::Startplay2);
    platform::screens::unload(kScreen);
    if (shared.playsound == 1) playwav(tables::kClickWav);
}

}  // namespace shell
