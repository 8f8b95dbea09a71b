#include "shell/morvelrules.h"

#include "shell/common.h"
#include "shell/looks.h"
#include "shell/module1.h"

namespace shell {

const RulesPage& rulesPage(int page) {
    // The 6x6 pictures were redrawn once; their files carry a "2".
    static const RulesPage pages[] = {
        {"4x4 Board",
         "Drag and drop the pictures into the grid so that all the pictures in each row are "
         "different, all the pictures in each column are different, all the pictures in each "
         "diagonal are different and all the pictures in each quarter are different.",
         "images\\4x4puzzle.jpg", "images\\4x4solution.jpg"},
        {"5x5 Board",
         "Drag and drop the pictures into the grid so that all the pictures in each row are "
         "different, all the pictures in each column are different and all the pictures along "
         "each diagonal are different.",
         "images\\5x5puzzle.jpg", "images\\5x5solution.jpg"},
        {"6x6 Board",
         "Drag and drop the pictures into the grid so that all the pictures in each row are "
         "different, all the pictures in each column are different and all the pictures in "
         "each of the six coloured rectangles are different.",
         "images\\6x6puzzle2.jpg", "images\\6x6solution2.jpg"},
    };
    return pages[page];
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
        option->setText(rulesPage(k).heading);
        styleBlueOnWhite(*option, designFont("Arial", 15.75, true));
        Option1.add(k, option);
    }
    Option1(0).setValue(true);

    Image1.add(0, new platform::PictureBox(this)).setBounds(4800, 120, 4995, 1800);
    Image2 = new platform::PictureBox(this);
    Image2->setBounds(13560, 120, 1500, 2085);

    const QFont large = designFont("Arial", 24, false);
    const QFont sentence = designFont("Arial", 18, false);
    Label1.add(6, makeLabel(this, 360, 2280, 14895, 765, rulesPage(0).heading,
                            blueTextLook(large, Qt::AlignLeft)));
    // A touch wider than designed: the Arial stand-in sets this heading a few
    // pixels wider than the label and would cut off its last letter.
    Label1.add(0, makeLabel(this, 4920, 2280, 4650, 540, "The Rules of Pimbalo",
                            blueTextLook(large, Qt::AlignLeft)));
    Label1.add(2, makeLabel(this, 360, 3000, 14535, 1725, rulesPage(0).rule,
                            blueTextLook(sentence, Qt::AlignLeft, true)));
    Label1.add(3, makeLabel(this, 1320, 4320, 5415, 525, "Puzzle", blueTextLook(large)));
    Label1.add(1, makeLabel(this, 8280, 4320, 5415, 525, "Solution", blueTextLook(large)));

    Image3 = new platform::PictureBox(this);
    Image3->setBounds(1320, 4920, 5400, 5400);
    Image4 = new platform::PictureBox(this);
    Image4->setBounds(8280, 4920, 5400, 5400);

    Label1.add(4, makeLabel(this, 360, 10620, 11775, 885,
                            "High scores will only be saved if Pimbalo is installed on your hard "
                            "disk. To install Pimbalo run the setup program on the CD-ROM.",
                            blueTextLook(sentence, Qt::AlignLeft, true)));
    Label3.add(0, makeLabel(this, 13560, 10920, 1695, 495, "Exit",
                            buttonLook(designFont("Arial", 18, true))));
}

void Morvelrules::Form_Load() {
    placeform(*this);
    Image1(0).loadPicture("Images\\pimbalo2.jpg");
    Image2->loadPicture("Images\\logo2.jpg");
    Image3->loadPicture(rulesPage(0).puzzlePicture);
    Image4->loadPicture(rulesPage(0).solutionPicture);
}

void Morvelrules::showPage(int page) {
    const RulesPage& shown = rulesPage(page);
    Image3->loadPicture(shown.puzzlePicture);
    Image4->loadPicture(shown.solutionPicture);
    Label1(6).setCaption(shown.heading);
    Label1(2).setCaption(shown.rule);
}

void Morvelrules::Label3_Click() {
    platform::screens::unload(kScreen);
    if (module1().playsound == 1) playwav("wav\\click.wav");
}

}  // namespace shell
