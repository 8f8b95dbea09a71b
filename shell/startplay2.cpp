#include "shell/startplay2.h"

#include "platform/desktop.h"
#include "platform/translation.h"
#include "shell/common.h"
#include "shell/looks.h"
#include "shell/module1.h"
#include "shell/titlefrm.h"
#include "tables/colours.h"
#include "tables/geometry.h"
#include "tables/pictures.h"
#include "tables/sounds.h"
#include "tables/texts.h"

namespace shell {

namespace {

namespace text = tables::options_text;

// Every check box clicks when the sound was on before the change, so ticking
// "Play Sound" is silent and clearing it is heard.
void clickIfSoundWasOn() {
    if (module1().playsound == 1) playwav(tables::kClick1Wav);
}

}  // namespace

Startplay2::Startplay2() : Form(kScreen, platform::FormKind::Fixed) {
    setClientSize(6510, 8250);
    buildLayout();
    // Wired after the designed values are set, so only later changes react.
    wireEvents();
}

void Startplay2::buildLayout() {
    using platform::designFont;
    Image1.add(0, makePictureBox(this, 1080, 120, tables::kOptionsPicture));
    Image2 = makePictureBox(this, 4320, 1800, tables::kMascot);

    const auto heading = blueTextLook(designFont("Arial", 27.75, true));
    Label2.add(1, makeLabel(this, 120, 1620, 3960, 600, text::kBoardSize, heading));
    Label2.add(0, makeLabel(this, 1440, 5640, 3600, 600, text::kLevel, heading));
    Label2.add(12, makeLabel(this, 1560, 7500, 3315, 375, tables::kPublisherCaption,
                             buttonLook(designFont("Arial", 12, true))));

    const float sizeTops[] = {2295, 3180, 4065};
    for (int k = 0; k < 3; ++k) {
        auto* option = new platform::OptionButton(this);
        option->setBounds(1200, sizeTops[k], 1815, 840);
        option->setText(text::kSizes[k]);
        styleBlueOnWhite(*option, designFont("Arial", 36, true));
        Option1.add(k, option);
    }
    Option1(0).setValue(true);

    Label6 = makeLabel(this, 3900, 4200, 2295, 555, text::kTheRules,
                       buttonLook(designFont("Arial", 20.25, true)));

    auto makeCheck = [this](float left, float width, const char* caption, int designed) {
        auto* box = new platform::CheckBox(this);
        box->setBounds(left, 5100, width, 375);
        box->setText(platform::translated("Options", caption));
        styleBlueOnWhite(*box, platform::designFont("Arial", 12, true));
        box->setValue(designed);
        return box;
    };
    Check2 = makeCheck(360, 1575, text::kTimersOn, 0);
    Check1 = makeCheck(2160, 1695, text::kPlaySound, 1);
    Check3 = makeCheck(4080, 1935, text::kHideDesktop, 1);
    Check3->hide();

    // The level buttons wear the colours the boards take at each level.
    const float levelLefts[] = {1440, 2760, 4080};
    for (int k = 0; k < tables::kLevels; ++k)
        Label1.add(k, makeLabel(this, levelLefts[k], 6360, 975, 855, text::kLevels[k],
                                buttonLook(designFont("Tahoma", 32.25, true),
                                           platform::bgr(tables::kLevelColours[k]))));

    Label3.add(0, makeLabel(this, 5280, 7500, 735, 375, text::kExit,
                            buttonLook(designFont("Arial", 12.75, true))));
    Label5 = makeLabel(this, 0, 7980, 6495, 255, tables::kLegalNotice,
                       blueTextLook(designFont("Arial", 9, false)));
}

void Startplay2::wireEvents() {
    Option1.forEach([](int k, platform::OptionButton& option) {
        option.onSelect = [k] { module1().boardsize = static_cast<std::int16_t>(k); };
    });
    Check1->onChange = [this] { Check1_Click(); };
    Check2->onChange = [this] { Check2_Click(); };
    Check3->onChange = [this] { Check3_Click(); };
    Label1.forEach(
        [this](int k, platform::Label& level) { level.on.click = [this, k] { Label1_Click(k); }; });
    Label6->on.click = [this] { Label6_Click(); };
    Label2.forEach([](int, platform::Label& label) {
        label.on.click = [] { platform::openWebPage(kPublisherPage); };
    });
    Label3(0).on.click = [this] { Label3_Click(); };
}

void Startplay2::Form_Load() {
    centreOnScreen();
    Image1(0).loadPicture(tables::kOptionsPicture.path);
    Image2->loadPicture(tables::kMascot.path);
    // On a screen of 1024 pixels or less the game's windows cover the desktop
    // anyway, so the backdrop cannot be switched off here.
    if (platform::screenWidthTwips() > tables::kWindowWidth) Check3->show();

    // Each of these reacts as a player's change would when it moves a box
    // away from its designed state.
    const auto& shared = module1();
    Check1->setValue(shared.playsound == 1 ? 1 : 0);
    Check2->setValue(shared.timerson == 1 ? 1 : 0);
    Check3->setValue(shared.hidedesktop == 1 ? 1 : 0);
    // A size outside 0..2 (a hand-edited file) leaves the designed button.
    if (Option1.has(shared.boardsize)) Option1(shared.boardsize).setValue(true);
}

void Startplay2::Check1_Click() {
    clickIfSoundWasOn();
    module1().playsound = Check1->Value() == 1 ? 1 : 0;
}

void Startplay2::Check2_Click() {
    clickIfSoundWasOn();
    module1().timerson = static_cast<std::int16_t>(Check2->Value());
}

void Startplay2::Check3_Click() {
    clickIfSoundWasOn();
    if (Check3->Value() == 1) {
        module1().hidedesktop = 1;
        platform::screens::show(tables::Screen::Grey);
    } else {
        module1().hidedesktop = 0;
        platform::screens::unload(tables::Screen::Grey);
    }
    // Back on top of the backdrop.
    platform::screens::show(kScreen);
}

void Startplay2::Label1_Click(int level) {
    auto& shared = module1();
    shared.level = static_cast<std::int16_t>(level);
    for (int k = 0; k < 3; ++k)
        if (Option1(k).Value()) platform::screens::show(tables::boardScreen(k));
    platform::screens::unload(kScreen);
    if (shared.playsound == 1) playwav(tables::kClickWav);
}

void Startplay2::Label6_Click() {
    platform::screens::show(tables::Screen::Morvelrules);
    if (module1().playsound == 1) playwav(tables::kClickWav);
}

void Startplay2::Label3_Click() {
    // Touching the title screen loads it afresh, re-reading both files.
    platform::screens::get<Titlefrm>(Titlefrm::kScreen)
        .Label5->setCaption(tables::title_text::kCancel);
    platform::screens::show(Titlefrm::kScreen);
    platform::screens::unload(kScreen);
}

}  // namespace shell
