// The platform layer under the screens: file lookup, twips placement, control
// arrays, the screen model, value-change events and window placing.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>
#include <stdexcept>

#include "platform/control_array.h"
#include "platform/controls.h"
#include "platform/fatal.h"
#include "platform/files.h"
#include "platform/form.h"
#include "platform/sound.h"
#include "shell/common.h"

using namespace platform;

namespace {

struct FatalError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// A screen that counts its start-ups and keeps one control value.
int loads = 0;
class Probe : public Form {
  public:
    Probe() : Form("Probe", FormKind::FullSize), caption(new Label(this)) {}
    void Form_Load() override {
        ++loads;
        caption->setCaption("designed");
    }
    Label* caption;
};

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

// A one-image cursor file: directory, entry with the hot spot, 32-bit BMP.
QByteArray cursorFile(int size, int hotX, int hotY) {
    QByteArray bmp;
    auto put16 = [](QByteArray& b, int v) {
        b.append(char(v & 0xFF)).append(char((v >> 8) & 0xFF));
    };
    auto put32 = [&](QByteArray& b, int v) {
        put16(b, v & 0xFFFF);
        put16(b, (v >> 16) & 0xFFFF);
    };
    put32(bmp, 40);
    put32(bmp, size);
    put32(bmp, size * 2);
    put16(bmp, 1);
    put16(bmp, 32);
    put32(bmp, 0);
    put32(bmp, 0);
    put32(bmp, 0);
    put32(bmp, 0);
    put32(bmp, 0);
    put32(bmp, 0);
    for (int i = 0; i < size * size; ++i) bmp.append("\x00\x00\xff\xff", 4);  // red, opaque
    bmp.append(QByteArray(size * 4 * size / 32, '\0'));                       // AND mask
    QByteArray file;
    put16(file, 0);
    put16(file, 2);
    put16(file, 1);
    file.append(char(size)).append(char(size)).append('\0').append('\0');
    put16(file, hotX);
    put16(file, hotY);
    put32(file, bmp.size());
    put32(file, 22);
    return file + bmp;
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
        writeFile("Images/H_POINT.cur", cursorFile(32, 9, 2));
        setFatalHandler([](const QString& m) { throw FatalError(m.toStdString()); });
        screens::registerScreen("Probe", [] { return new Probe; });
    }
    void cleanupTestCase() { QDir::setCurrent(oldCwd); }

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
        const QCursor c = loadCursor("images\\h_point.cur");
        QCOMPARE(c.hotSpot(), QPoint(9, 2));
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
        QVERIFY(!screens::isLoaded("Probe"));
        auto& probe = screens::get<Probe>("Probe");
        QCOMPARE(loads, 1);
        QCOMPARE(&screens::get<Probe>("Probe"), &probe);
        probe.caption->setCaption("changed");
        screens::unload("Probe");
        QVERIFY(!screens::isLoaded("Probe"));
        screens::show("Probe");
        QCOMPARE(loads, 2);
        QCOMPARE(screens::get<Probe>("Probe").caption->Caption(), std::string("designed"));
        QVERIFY(screens::get<Probe>("Probe").isVisible());

        bool ended = false;
        screens::setEndHandler([&] { ended = true; });
        screens::endProgram();
        QVERIFY(ended);
        QVERIFY(!screens::isLoaded("Probe"));
        QVERIFY_THROWS_EXCEPTION(std::logic_error, screens::get("NoSuchScreen"));
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

    void placeformCentresTheFullSizeScreen() {
        Probe probe;
        shell::placeform(probe);
        // 1280 x 1024 pixels is 19200 x 15360 twips.
        QCOMPARE(probe.Width(), 15360.0f);
        QCOMPARE(probe.Height(), 11520.0f);
        QCOMPARE(probe.Left(), 1920.0f);
        QCOMPARE(probe.Top(), 1920.0f);
    }

    void missingSoundsAreSilentButSeen() {
        QStringList asked;
        setSoundObserver([&](const std::string& p) { asked << QString::fromStdString(p); });
        playSound("wav\\nothere.wav");
        playSound("wav\\nothere.wav");
        setSoundObserver(nullptr);
        QCOMPARE(asked.size(), 2);
    }

    // The audio libraries come with the first sound that has a file to play.
    void theFirstSoundLoadsTheSoundModule() {
        auto moduleLoaded = [] {
            QFile maps("/proc/self/maps");
            return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("libpimbalo_sound");
        };
        QVERIFY(!moduleLoaded());
        playSound("wav\\nothere.wav");
        QVERIFY(!moduleLoaded());
        QDir().mkpath("wav");
        writeFile("wav/click.wav", "RIFF");
        playSound("wav\\click.wav");
        QVERIFY(moduleLoaded());
    }
};

QTEST_MAIN(PlatformTests)
#include "platform_tests.moc"
