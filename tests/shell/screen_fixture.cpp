#include "screen_fixture.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>

#include "platform/form.h"
#include "platform/sound.h"
#include "records/fastest_times.h"
#include "records/inf_files.h"
#include "shell/module1.h"
#include "shell/register.h"
#include "shell/startplay2.h"

namespace shell_test {

namespace {

// Stands in for a board: records that it was shown and does nothing else.
class StandInBoard : public platform::Form {
  public:
    explicit StandInBoard(const std::string& name) : Form(name, platform::FormKind::FullSize) {}
    void Form_Load() override { boardsShown().push_back(screenName()); }
};

void unloadEverything(bool& ended) {
    platform::screens::setEndHandler([&ended] { ended = true; });
    platform::screens::endProgram();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace

QString gameFolder() {
    return QStringLiteral(PIMBALO_GAME_DIR);
}

void ScreenFixture::registerOnce() {
    static bool done = false;
    if (done) return;
    done = true;
    shell::registerScreens();
    for (int size = 0; size < 3; ++size) {
        const std::string name = shell::boardScreenName(size);
        platform::screens::registerScreen(name, [name] { return new StandInBoard(name); });
    }
}

void ScreenFixture::begin(const QString& images) {
    registerOnce();
    dir_ = std::make_unique<QTemporaryDir>();
    QVERIFY(dir_->isValid());
    const QString imagesFolder = images.isEmpty() ? gameFolder() + "/Images" : images;
    QVERIFY(QFile::link(imagesFolder, dir_->filePath("Images")));
    QVERIFY(QFile::link(gameFolder() + "/wav", dir_->filePath("wav")));
    previousFolder_ = QDir::currentPath();
    QVERIFY(QDir::setCurrent(dir_->path()));

    shell::module1() = shell::Module1{};
    sounds.clear();
    boardsShown().clear();
    ended = false;
    platform::setSoundObserver([this](const std::string& file) { sounds.push_back(file); });
    platform::screens::setEndHandler([this] { ended = true; });
}

void ScreenFixture::end() {
    bool ignored = false;
    unloadEverything(ignored);
    platform::setSoundObserver(nullptr);
    QDir::setCurrent(previousFolder_);
    dir_.reset();
}

QString ScreenFixture::path(const QString& name) const {
    return dir_->filePath(name);
}

void ScreenFixture::writeFile(const QString& name, const QByteArray& bytes) const {
    QFile f(path(name));
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}

QByteArray ScreenFixture::readFile(const QString& name) const {
    QFile f(path(name));
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QByteArray highscoreWithOneEntry(int seconds, const std::string& name) {
    records::FastestTimes tables;
    tables.besttime[0][0][0] = static_cast<std::int16_t>(seconds);
    tables.bestname[0][0][0] = name;
    return QByteArray::fromStdString(records::highscoreText(tables));
}

void clickAt(QWidget& control, QPoint at) {
    QWidget* top = control.window();
    QWindow* window = top->windowHandle();
    QVERIFY2(window && top->isVisible(), "clicks need a shown screen");
    const QPoint inWindow = control.mapTo(top, at);
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, inWindow);
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, inWindow);
}

void click(QWidget& control) {
    clickAt(control, control.rect().center());
}

void clickIndicator(QWidget& control) {
    clickAt(control, QPoint(8, control.height() / 2));
}

std::vector<std::string>& boardsShown() {
    static std::vector<std::string> shown;
    return shown;
}

void leaveBoard(const std::string& name) {
    platform::screens::show(shell::Startplay2::kName);
    platform::screens::unload(name);
}

}  // namespace shell_test
