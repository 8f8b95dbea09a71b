#include "shell/morvelrules.h"

#include "platform/translation.h"
#include "shell/common.h"
#include "shell/looks.h"
#include "shell/module1.h"
#include "tables/pictures.h"
#include "tables/sounds.h"
#include "tables/texts.h"

namespace shell {

namespace text = tables::rules_text;

RulesPage rulesPage(int page) {
    const tables::RulesExample& example = tables::kRulesExamples[page];
    return {text::kPages[page], tables::kRules[page], example.puzzle.path, example.solution.path};
}

Morvelrules::Morvelrules() : Form(kScreen, platform::FormKind::FullSize) {
    buildLayout();
    // It covers the options screen, which stays loaded beneath it.
    keepAbove([] { return platform::screens::loaded(tables::Screen::Startplay2); });
    Option1.forEach([this](int k, platform::OptionButton& option) {
        option.onSelect = [this, k] { showPage(k); };
    });
    Label3(0).on.click = [this] { Label3_Click(); };
}

void Morvelrules::buildLayout() {
    using platform::designFont;
    const float optionTops[] = {360, 840, 1320};
    for (int k = 0; k < 3; ++k) {
        auto* option = new platform::OptionButton(this);
        option->setBounds(360, optionTops[k], 2295, 495);
        option->setText(platform::translated("Rules", rulesPage(k).heading));
        styleBlueOnWhite(*option, designFont("Arial", 15.75, true));
        Option1.add(k, option);
    }
    Option1(0).setValue(true);

    Image1.add(0, makePictureBox(this, 4800, 120, tables::kRulesPicture));
    Image2 = makePictureBox(this, 13560, 120, tables::kMascot);

    const QFont large = designFont("Arial", 24, false);
    const QFont sentence = designFont("Arial", 18, false);
    Label1.add(6, makeLabel(this, 360, 2280, 14895, 765, rulesPage(0).heading,
                            blueTextLook(large, Qt::AlignLeft)));
    // A touch wider than designed: the Arial stand-in sets this heading a few
    // pixels wider than the label and would cut off its last letter.
    Label1.add(0, makeLabel(this, 4920, 2280, 4650, 540, text::kTitle,
                            blueTextLook(large, Qt::AlignLeft)));
    Label1.add(2, makeLabel(this, 360, 3000, 14535, 1725, rulesPage(0).rule,
                            blueTextLook(sentence, Qt::AlignLeft, true)));
    Label1.add(3, makeLabel(this, 1320, 4320, 5415, 525, text::kPuzzle, blueTextLook(large)));
    Label1.add(1, makeLabel(this, 8280, 4320, 5415, 525, text::kSolution, blueTextLook(large)));

    Image3 = makePictureBox(this, 1320, 4920, tables::kRulesExamples[0].puzzle);
    Image4 = makePictureBox(this, 8280, 4920, tables::kRulesExamples[0].solution);

    Label1.add(4, makeLabel(this, 360, 10620, 11775, 885, text::kInstallNotice,
                            blueTextLook(sentence, Qt::AlignLeft, true)));
    Label3.add(0, makeLabel(this, 13560, 10920, 1695, 495, text::kExit,
                            buttonLook(designFont("Arial", 18, true))));
}

void Morvelrules::Form_Load() {
    placeform(*this);
    Image1(0).loadPicture(tables::kRulesPicture.path);
    Image2->loadPicture(tables::kMascot.path);
    Image3->loadPicture(rulesPage(0).puzzlePicture);
    Image4->loadPicture(rulesPage(0).solutionPicture);
}

void Morvelrules::showPage(int page) {
    const RulesPage shown = rulesPage(page);
    Image3->loadPicture(shown.puzzlePicture);
    Image4->loadPicture(shown.solutionPicture);
    Label1(6).setCaption(shown.heading);
    Label1(2).setCaption(shown.rule);
}

void Morvelrules::Label3_Click() {
    platform::screens::unload(kScreen);
    if (module1().playsound == 1) playwav(tables::kClickWav);
}

}  // namespace shell
