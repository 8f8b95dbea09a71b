// The platform layer under the screens: file lookup, twips placement, control
// arrays, the screen model, value-change events and window placing.
#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QStyle>
#include <QTemporaryDir>
#include <QtTest>
#include <stdexcept>
#include <tuple>

#include "platform/control_array.h"
#include "platform/controls.h"
#include "platform/display_server.h"
#include "platform/fatal.h"
#include "platform/files.h"
#include "platform/form.h"
#include "platform/sound.h"
#include "platform/timer.h"
#include "platform/translation.h"
#include "platform/wav_file.h"
#include "shell/common.h"
#include "tone_wav.h"

using namespace platform;

namespace {

struct FatalError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// A screen that counts its start-ups and keeps one control value, standing
// in for the title screen (the ids are the game's own).
int loads = 0;
constexpr tables::Screen kProbe = tables::Screen::Titlefrm;
class Probe : public Form {
  public:
    Probe() : Form(kProbe, FormKind::FullSize), caption(new Label(this)) {}
    void Form_Load() override {
        ++loads;
        caption->setCaption("designed");
    }
    Label* caption;
};

// A click, then at once the second press of a double-click, held.
void doubleClickHeld(QWindow* window, QPoint at) {
    QTest::mouseClick(window, Qt::LeftButton, {}, at);
    QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
    QTest::mousePress(window, Qt::LeftButton, {}, at);
}

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

}  // namespace

class PlatformTests : public QObject {
    Q_OBJECT
    QTemporaryDir dir;
    QString oldCwd;

  private slots:
    void initTestCase() {
        oldCwd = QDir::currentPath();
        QVERIFY(dir.isValid());
        QDir::setCurrent(dir.path());
        QDir().mkpath("Images/Dice");
        QImage img(8, 8, QImage::Format_RGB32);
        img.fill(Qt::green);
        QVERIFY(img.save("Images/Dice/One.jpg", "JPG"));
        writeFile("Images/broken.jpg", "not a picture");
        QVERIFY(QFile::copy(PIMBALO_GAME_DIR "/Images/H_POINT.cur", "Images/H_POINT.cur"));
        setFatalHandler([](const QString& m) { throw FatalError(m.toStdString()); });
        screens::registerScreen(kProbe, [] { return new Probe; });
    }
    void cleanupTestCase() { QDir::setCurrent(oldCwd); }

    // The first of the desktop's languages the game has wins; a regional
    // variant falls back to its language; English first, C or a language
    // without a file load nothing.
    void languageChoice() {
        QTemporaryDir folder;
        for (const char* file : {"pimbalo_de.qm", "pimbalo_pt_BR.qm", "pimbalo_pl.qm"})
            writeFile(folder.filePath(file), "");
        auto chosen = [&folder](const QStringList& languages) {
            return QFileInfo(translationFile(languages, folder.path())).fileName();
        };
        QCOMPARE(chosen({"de-AT"}), "pimbalo_de.qm");
        QCOMPARE(chosen({"de-Latn-AT", "de"}), "pimbalo_de.qm");
        QCOMPARE(chosen({"pt-BR", "pt"}), "pimbalo_pt_BR.qm");
        QCOMPARE(chosen({"sv-SE", "sv", "pl-PL", "de"}), "pimbalo_pl.qm");
        QCOMPARE(chosen({"pt-PT", "pt"}), "");
        QCOMPARE(chosen({"en-GB", "en", "de"}), "");
        QCOMPARE(chosen({"C"}), "");
        QCOMPARE(chosen({}), "");
    }

    // The desktop's settings as Qt reads them (LANGUAGE, LC_ALL, LC_MESSAGES,
    // LANG): run by ctest with those set and the file it must pick.
    void languageFromTheDesktop() {
        const QString expected = qEnvironmentVariable("PIMBALO_EXPECTED_TRANSLATION");
        if (!qEnvironmentVariableIsSet("PIMBALO_EXPECTED_TRANSLATION"))
            QSKIP("run with the desktop's language set");
        QTemporaryDir folder;
        for (const char* file : {"pimbalo_de.qm", "pimbalo_pl.qm"})
            writeFile(folder.filePath(file), "");
        const QString file = translationFile(QLocale::system().uiLanguages(), folder.path());
        QCOMPARE(QFileInfo(file).fileName(), expected);
    }

    // Switching on a timer that runs already keeps its next tick where it
    // was; only a timer switched off starts its interval afresh. First: after
    // the fatal errors below no timer starts.
    void reenablingARunningTimerKeepsItsNextTick() {
        QObject owner;
        Timer timer(&owner, 1000);
        const QTimer* clock = owner.findChild<QTimer*>();
        QVERIFY(clock);
        timer.setEnabled(true);
        QTRY_VERIFY(clock->remainingTime() < 900);
        const int left = clock->remainingTime();
        timer.setEnabled(true);
        QVERIFY(timer.Enabled() && clock->remainingTime() <= left);
        timer.setEnabled(false);
        QVERIFY(!timer.Enabled());
        timer.setEnabled(true);
        QVERIFY(clock->remainingTime() > left);
        QCOMPARE(timer.Interval(), 1000);
    }

    void gamePathsIgnoreLetterCase() {
        QCOMPARE(findGameFile("Images\\Dice\\One.jpg").value_or(""),
                 QString("Images/Dice/One.jpg"));
        QCOMPARE(findGameFile("images\\dice\\ONE.JPG").value_or(""),
                 QString("Images/Dice/One.jpg"));
        QVERIFY(!findGameFile("images\\dice\\two.jpg"));
        QVERIFY(!findGameFile(""));
        QCOMPARE(loadPicture("IMAGES\\dice\\one.jpg").size(), QSize(8, 8));
    }

    // Files hold pictures at twice their box's size; on this screen (one pixel
    // per pixel) they are decoded at the box's size, never enlarged.
    void picturesAreDecodedForTheirBox() {
        const QPixmap half = loadPicture("Images\\Dice\\One.jpg", QSize(4, 4));
        QCOMPARE(half.size(), QSize(4, 4));
        QCOMPARE(half.cacheKey(), loadPicture("images\\dice\\one.jpg", QSize(4, 4)).cacheKey());
        QCOMPARE(loadPicture("Images\\Dice\\One.jpg", QSize(16, 16)).size(), QSize(8, 8));
        QCOMPARE(loadPicture("Images\\Dice\\One.jpg").size(), QSize(8, 8));
        QCOMPARE(half.toImage().pixelColor(1, 1).green(), 255);
        QVERIFY(!tryLoadPicture("Images\\broken.jpg", QSize(4, 4)));
        QVERIFY(!tryLoadPicture("Images\\nothere.jpg"));
    }

    // Controls keep the first face of their list that is installed; a list
    // with no installed face is left to the font system.
    void shownWindowsUseInstalledFaces() {
        QWidget window;
        Label substituted(&window), unknown(&window), plain(&window);
        QFont font = designFont("No Such Face", 12, true);
        font.setFamilies({"No Such Face", "DejaVu Sans", "Liberation Sans"});
        substituted.setFont(font);
        font.setFamilies({"No Such Face", "Nor This One"});
        unknown.setFont(font);
        settleFonts(window);
        QCOMPARE(substituted.font().families(), QStringList{"DejaVu Sans"});
        QVERIFY(substituted.font().bold());
        QCOMPARE(unknown.font().families(), (QStringList{"No Such Face", "Nor This One"}));
        QVERIFY(!plain.testAttribute(Qt::WA_SetFont));
    }

    void unreadablePicturesEndTheGameNamingTheFile() {
        for (const char* path : {"Images\\nothere.jpg", "Images\\broken.jpg"}) {
            try {
                loadPicture(path);
                QFAIL("a missing or broken picture must not load");
            } catch (const FatalError& e) {
                QVERIFY2(QString(e.what()).contains(path), e.what());
            }
        }
    }

    void cursorKeepsItsHotSpot() {
        QFile file("Images/H_POINT.cur");
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray head = file.read(14);  // the first entry's hot spot: bytes 10 to 13
        QCOMPARE(head.size(), 14);
        const auto word = [&head](int at) { return quint8(head[at]) | quint8(head[at + 1]) << 8; };
        const QPoint hotSpot(word(10), word(12));
        QVERIFY(hotSpot != QPoint(0, 0));
        const QCursor c = loadCursor("images\\h_point.cur");
        QCOMPARE(c.hotSpot(), hotSpot);
        QCOMPARE(c.pixmap().size(), QSize(32, 32));
    }

    void twipsReadBackExactlyAndPlacePixels() {
        QWidget parent;
        PictureBox box(&parent);
        const float left = 5760.0f + 1200.0f * 5, top = 4200.0f + 1200.0f * 3;
        box.setBounds(left, top, 1020, 1020);
        QCOMPARE(box.Left(), left);
        QCOMPARE(box.Top(), top);
        QCOMPARE(box.geometry(), QRect(784, 520, 68, 68));
        PictureBox other(&parent);
        other.moveTo(box.Left(), box.Top());
        QVERIFY(other.Left() == box.Left() && other.Top() == box.Top());
        other.setLeft(box.Left() + 7.5f);  // half a pixel: stored exactly, drawn rounded
        QCOMPARE(other.Left(), left + 7.5f);
    }

    void controlArraysGrowByHiddenCopiesOfElementZero() {
        QWidget parent;
        ControlArray<PictureBox> tray("Image3");
        QList<int> wired;
        tray.wire = [&](int index, PictureBox&) { wired << index; };
        auto* first = new PictureBox(&parent);
        first->setBounds(100, 200, 1560, 1560);
        first->setFramed(true);
        tray.add(0, first);
        PictureBox& copy = tray.load(1);
        QCOMPARE(wired, QList<int>({0, 1}));
        QVERIFY(copy.isHidden());
        QVERIFY(copy.framed());
        QCOMPARE(copy.Width(), 1560.0f);
        QCOMPARE(copy.parentWidget(), &parent);
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, tray(2));
    }

    void screensLoadOnceAndStartAfreshAfterUnload() {
        loads = 0;
        QVERIFY(!screens::isLoaded(kProbe));
        auto& probe = screens::get<Probe>(kProbe);
        QCOMPARE(loads, 1);
        QCOMPARE(&screens::get<Probe>(kProbe), &probe);
        probe.caption->setCaption("changed");
        screens::unload(kProbe);
        QVERIFY(!screens::isLoaded(kProbe));
        screens::show(kProbe);
        QCOMPARE(loads, 2);
        QCOMPARE(screens::get<Probe>(kProbe).caption->Caption(), std::string("designed"));
        QVERIFY(screens::get<Probe>(kProbe).isVisible());

        bool ended = false;
        screens::setEndHandler([&] { ended = true; });
        screens::endProgram();
        QVERIFY(ended);
        QVERIFY(!screens::isLoaded(kProbe));
        QVERIFY_THROWS_EXCEPTION(std::logic_error, screens::get(tables::Screen::Morvelrules));
    }

    void boxesReactOnlyToRealChanges() {
        QWidget parent;
        CheckBox box(&parent);
        int changes = 0;
        box.onChange = [&] { ++changes; };
        box.setValue(1);
        box.setValue(1);
        box.setValue(0);
        box.setValue(7);  // only 1 counts as ticked
        QCOMPARE(changes, 2);

        OptionButton a(&parent), b(&parent);
        int selectedA = 0, selectedB = 0;
        a.onSelect = [&] { ++selectedA; };
        b.onSelect = [&] { ++selectedB; };
        a.setValue(true);
        b.setValue(true);  // deselects a without a reaction of a
        a.setValue(true);
        QCOMPARE(selectedA, 2);
        QCOMPARE(selectedB, 1);
        QVERIFY(!b.Value());
    }

    // A double-click is one click: one Click of a label, one press and one
    // release of a picture (the screens' tests try the rest). Held, its
    // second press drags a picture from where it was pressed, once it has
    // gone further than a shaking hand does; a label never hears of it.
    void aDoubleClickIsOneClick() {
        QWidget window;
        window.resize(200, 40);
        Label command(&window);
        PictureBox piece(&window);
        command.setBounds(0, 0, 1500, 600);
        piece.setBounds(1500, 0, 1500, 600);
        int clicks = 0;
        QStringList seen;  // the picture's presses, drags and releases
        command.on.click = [&] { ++clicks; };
        piece.on.mouseDown = [&](int, int, float x, float y) {
            seen << QString("D%1,%2").arg(x).arg(y);
        };
        piece.on.mouseMove = [&](int b, int, float, float) {
            if (b) seen << "M";
        };
        piece.on.mouseUp = [&](int, int, float, float) { seen << "U"; };
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QWindow* w = window.windowHandle();
        const QPoint onCommand(50, 20), onPiece(150, 20);
        QTest::mouseDClick(w, Qt::LeftButton, {}, onCommand);
        QTest::mouseDClick(w, Qt::LeftButton, {}, onPiece);
        QCOMPARE(clicks, 1);
        QCOMPARE(seen, (QStringList{"D750,300", "U"}));

        seen.clear();
        doubleClickHeld(w, onPiece);
        QTest::mouseMove(w, onPiece + QPoint(3, 2));  // a shaking hand drags nothing
        QCOMPARE(seen, (QStringList{"D750,300", "U"}));
        QTest::mouseMove(w, onPiece + QPoint(30, 2));
        QTest::mouseRelease(w, Qt::LeftButton, {}, onPiece + QPoint(30, 2));
        QCOMPARE(seen, (QStringList{"D750,300", "U", "D750,300", "M", "U"}));
        doubleClickHeld(w, onCommand);
        QTest::mouseMove(w, onCommand + QPoint(30, 0));
        QTest::mouseRelease(w, Qt::LeftButton, {}, onCommand + QPoint(30, 0));
        QCOMPARE(clicks, 2);
    }

    // Commands and boxes from the keyboard and from a screen reader: the
    // first command takes the focus, Tab skips what the player cannot reach,
    // Space and Enter press, and the focus band stays inside the command.
    void commandsTakeKeysAndScreenReaders() {
        screens::registerScreen(tables::Screen::Morvelrules, [] {
            return new Form(tables::Screen::Morvelrules, FormKind::FullSize);
        });
        Form& form = screens::get(tables::Screen::Morvelrules);
        auto command = [&form](float left, const char* caption) {
            auto* label = new Label(&form);
            label->setLook({Qt::yellow, Qt::black, false, true, Qt::AlignHCenter, QFont(), false});
            label->setBounds(left, 600, 1500, 600);
            label->setCaption(caption);
            label->makeCommand();
            return label;
        };
        Label* hidden = command(0, "Hidden");
        Label* first = command(1500, "First");
        auto* box = new CheckBox(&form);
        box->setBounds(3000, 600, 1500, 600);
        box->setText("Box");
        box->setValue(1);
        Label* last = command(4500, "Last");
        hidden->hide();
        form.setCommandOrder({hidden, first, box, last});
        int hiddenRuns = 0, firstRuns = 0, lastRuns = 0;
        hidden->on.click = [&] { ++hiddenRuns; };
        first->on.click = [&] { ++firstRuns; };
        last->on.click = [&] { ++lastRuns; };
        form.Show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QCOMPARE(QApplication::focusWidget(), first);

        const QImage unfocused = last->grab().toImage();
        const QImage boxUnfocused = box->grab().toImage();
        QWindow* window = form.windowHandle();
        QTest::keyClick(window, Qt::Key_Space);
        QTest::keyClick(window, Qt::Key_Tab);
        // Its band: black lines where there were none, past the indicator.
        const QImage boxFocused = box->grab().toImage();
        std::vector<int> banded;
        for (int x = 0; x < boxFocused.width(); ++x)
            if (boxFocused.pixelColor(x, 20) == Qt::black &&
                boxUnfocused.pixel(x, 20) != boxFocused.pixel(x, 20))
                banded.push_back(x);
        QVERIFY(banded.size() >= 2);
        QVERIFY(banded.front() >= box->style()->pixelMetric(QStyle::PM_IndicatorWidth));
        QTest::keyClick(window, Qt::Key_Return);  // ticks and clears the box too
        QCOMPARE(box->Value(), 0);
        QTest::keyClick(window, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), last);
        QTest::keyClick(window, Qt::Key_Enter);
        QTest::keyClick(window, Qt::Key_Tab);  // round past the hidden one
        QCOMPARE(QApplication::focusWidget(), first);
        QTest::keyClick(window, Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), last);
        QCOMPARE(std::tuple(hiddenRuns, firstRuns, lastRuns), std::tuple(0, 1, 1));

        // The band lies inside the frame: the edge rows keep their colour.
        const QImage focused = last->grab().toImage();
        QCOMPARE(last->geometry(), QRect(300, 40, 100, 40));
        QVERIFY(focused != unfocused);
        for (int x = 0; x < focused.width(); ++x)
            QCOMPARE(focused.pixel(x, 0), unfocused.pixel(x, 0));
        QCOMPARE(focused.pixelColor(2, 20), QColor(Qt::white));

        // A screen reader: buttons named as shown, pressed only while shown.
        auto* reader = QAccessible::queryAccessibleInterface(last);
        QCOMPARE(reader->role(), QAccessible::Button);
        last->setCaption("Renamed");
        QCOMPARE(reader->text(QAccessible::Name), QString("Renamed"));
        QVERIFY(reader->state().focused && reader->state().focusable);
        reader->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        auto* boxReader = QAccessible::queryAccessibleInterface(box);
        QCOMPARE(boxReader->role(), QAccessible::CheckBox);
        boxReader->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(boxReader->state().checked && box->Value() == 1);
        auto* hiddenReader = QAccessible::queryAccessibleInterface(hidden);
        QVERIFY(hiddenReader->actionInterface()->actionNames().isEmpty());
        hiddenReader->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        hiddenReader->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
        box->hide();
        boxReader->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(box->Value(), 1);
        QCOMPARE(std::tuple(hiddenRuns, lastRuns), std::tuple(0, 2));
        QCOMPARE(QApplication::focusWidget(), last);
        screens::unload(tables::Screen::Morvelrules);
    }

    // The overlay's border makes it as wide as the full-size screen; window
    // managers keep it above the full-size screen shown last, while shown.
    void overlayCoversItsScreenAndStaysAboveIt() {
        screens::registerScreen(tables::Screen::highscores, [] {
            auto* over = new Form(tables::Screen::highscores, FormKind::Overlay);
            over->setClientSize(15210, 4050);
            return over;
        });
        screens::registerScreen(tables::Screen::jigsaw, [] {
            return new Form(tables::Screen::jigsaw, FormKind::FullSize);
        });
        Form& board = screens::get(tables::Screen::jigsaw);
        shell::placeform(board);
        board.Show();
        Form& over = screens::get(tables::Screen::highscores);
        QCOMPARE(QSizeF(over.Width(), over.Height()), QSizeF(15360, 4200));
        QCOMPARE(over.client()->geometry(), QRect(5, 5, 1014, 270));
        over.Show();
        QCOMPARE(over.owner(), &board);
        QCOMPARE(over.windowHandle()->transientParent(), board.windowHandle());

        over.hide();
        board.hide();
        over.Show();  // nothing shown to lie over
        QCOMPARE(over.windowHandle()->transientParent(), nullptr);
        screens::unload(tables::Screen::highscores);
        screens::unload(tables::Screen::jigsaw);
    }

    void x11OnlyForAWaylandSessionWithAnXServer() {
        struct Case {
            SessionEnvironment env;
            bool x11;
        };
        const Case cases[] = {
            {{nullptr, "wayland-0", nullptr, ":0"}, true},
            {{nullptr, nullptr, "wayland", ":0"}, true},
            {{"", "wayland-0", "wayland", ":1"}, true},           // an empty choice is none
            {{"wayland", "wayland-0", "wayland", ":0"}, false},   // the player's own choice
            {{nullptr, "wayland-0", "wayland", nullptr}, false},  // no XWayland to run on
            {{nullptr, "", "x11", ":0"}, false},                  // an X11 desktop
            {{nullptr, nullptr, "waylandish", ":0"}, false},
        };
        for (const Case& c : cases) QCOMPARE(shouldUseX11(c.env), c.x11);

        // These tests chose the offscreen platform; a Wayland session keeps it.
        const QByteArray chosen = qgetenv("QT_QPA_PLATFORM");
        qputenv("WAYLAND_DISPLAY", "wayland-test");
        preferX11OnWayland();
        qunsetenv("WAYLAND_DISPLAY");
        QCOMPARE(qgetenv("QT_QPA_PLATFORM"), chosen);
    }

    void wavFilesGiveTheirSamples() {
        auto chunk = [](const char* id, QByteArray body) {
            QByteArray c(id, 4);
            const quint32 n = quint32(body.size());
            c.append(reinterpret_cast<const char*>(&n), 4).append(body);
            if (n & 1) c.append('\0');
            return c;
        };
        auto fmt = [](quint16 encoding, quint16 channels, quint16 bits, quint32 rate = 22050) {
            QByteArray f(16, '\0');
            qToLittleEndian<quint16>(encoding, f.data());
            qToLittleEndian<quint16>(channels, f.data() + 2);
            qToLittleEndian<quint32>(rate, f.data() + 4);
            qToLittleEndian<quint16>(bits, f.data() + 14);
            return f;
        };
        auto wav = [](QByteArray chunks) { return "RIFF" + QByteArray(4, '\0') + "WAVE" + chunks; };

        // A list chunk of odd length before the samples; a stray half frame.
        PcmSound s = parseWav(
            wav(chunk("fmt ", fmt(1, 2, 16)) + chunk("LIST", "abc") + chunk("data", "0123456789")));
        QVERIFY(s.playable());
        QCOMPARE(s.format.sample, PcmFormat::Sample::Int16);
        QCOMPARE(s.format.channels, 2);
        QCOMPARE(s.format.sampleRate, 22050);
        QCOMPARE(s.format.bytesFor(1000000), 22050 * 4);
        QCOMPARE(s.samples, QByteArray("01234567"));

        // 24-bit samples widen to 32 bits, the low byte zero.
        s = parseWav(wav(chunk("fmt ", fmt(1, 1, 24)) + chunk("data", "abcdef")));
        QCOMPARE(s.format.sample, PcmFormat::Sample::Int32);
        QCOMPARE(s.samples, QByteArray("\0abc\0def", 8));

        // Only what a sound card plays sensibly, each limit itself included.
        auto playable = [&](quint16 channels, quint16 bits, quint32 rate) {
            return parseWav(wav(chunk("fmt ", fmt(1, channels, bits, rate)) +
                                chunk("data", QByteArray(96, '\0'))))
                .playable();
        };
        QVERIFY(playable(1, 8, 8000) && playable(8, 32, 192000));
        QVERIFY(!playable(1, 8, 7999) && !playable(1, 8, 192001) && !playable(1, 8, 0xFFFFFFFF));
        QVERIFY(!playable(0, 16, 22050) && !playable(9, 16, 22050) &&
                !playable(65535, 32, 0x7FFFFFFF));
        QVERIFY(!playable(1, 12, 22050) && !playable(1, 64, 22050));
        QVERIFY(!parseWav(wav(chunk("fmt ", fmt(2, 1, 16)) + chunk("data", "ab"))).playable());

        // A chunk running past the end (a file cut short) is damage: nothing
        // of it plays.
        QByteArray cut = wav(chunk("fmt ", fmt(1, 1, 8)) + chunk("data", "abcdef"));
        cut.chop(2);
        QVERIFY(!parseWav(cut).playable());
        QVERIFY(!parseWav(wav(chunk("fmt ", fmt(1, 1, 8)).left(20))).playable());
        QVERIFY(!parseWav(wav(chunk("data", "ab"))).playable());
        QVERIFY(!parseWav("RIFF").playable());
    }

    // A header claiming 65535 channels at 2^31 - 1 samples a second would
    // have the quarter second of silence after the sound take terabytes: the
    // file is silent instead, as a missing one is. (It holds one such frame.)
    void absurdWavHeadersAreSilent() {
        QByteArray file = toneWav(6.4);
        qToLittleEndian<quint16>(65535, file.data() + 22);       // channels
        qToLittleEndian<quint32>(0x7FFFFFFF, file.data() + 24);  // samples a second
        qToLittleEndian<quint16>(32, file.data() + 34);          // bits
        QDir().mkpath("wav");
        writeFile("wav/absurd.wav", file);
        playSound("wav\\absurd.wav");
        QCOMPARE(latestSoundFile(), QString());
    }

    // The player (the real sound module, loaded here) is handed the file,
    // found whatever its letter case; a missing file hands it nothing, which
    // silences a sound still playing too.
    void missingSoundsAreSilentButSeen() {
        setSoundModule(QStringLiteral(PIMBALO_SOUND_MODULE_FILE));
        QDir().mkpath("wav");
        writeFile("wav/Beep.wav", toneWav(0.1));
        QStringList asked;
        setSoundObserver([&](const std::string& p) { asked << QString::fromStdString(p); });
        playSound("wav\\BEEP.wav");
        QCOMPARE(latestSoundFile(), QDir::current().absoluteFilePath("wav/Beep.wav"));
        playSound("wav\\nothere.wav");
        QCOMPARE(latestSoundFile(), QString());
        setSoundObserver(nullptr);
        QCOMPARE(asked, QStringList({"wav\\BEEP.wav", "wav\\nothere.wav"}));
    }

    // Every timer stops before a fatal error's message, and none can start
    // again under it. Last, since no timer of this test program ticks after.
    void aFatalErrorStopsEveryTimerForGood() {
        QObject screen;
        Timer clock(&screen, 1000), check(&screen, 1000);
        clock.setEnabled(true);
        check.setEnabled(true);
        bool tickingAtTheMessage = true;
        setFatalHandler([&](const QString& m) {
            tickingAtTheMessage = clock.Enabled() || check.Enabled();
            throw FatalError(m.toStdString());
        });
        QVERIFY_THROWS_EXCEPTION(FatalError, loadPicture("Images\\nothere.jpg"));
        setFatalHandler([](const QString& m) { throw FatalError(m.toStdString()); });
        QVERIFY(!tickingAtTheMessage);
        check.setEnabled(true);  // as a drop that fills the board would
        QVERIFY(!check.Enabled());
    }
};

QTEST_MAIN(PlatformTests)
#include "platform_tests.moc"
