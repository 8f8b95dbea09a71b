#pragma once
// What the shell's screen tests share: each test runs in a fresh game folder
// (a temporary folder with the game's Images and wav linked in, where the .inf
// files land), with a log of the sounds asked for and stand-in board screens.
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

#include "platform/form.h"
#include "platform/sound.h"
#include "records/inf_files.h"
#include "shell/module1.h"
#include "shell/register.h"
#include "shell/startplay2.h"

namespace shell_test {

using Sounds = std::vector<std::string>;

inline const QString kGameFolder = QStringLiteral(PIMBALO_GAME_DIR);

class ScreenTest : public QObject {
    Q_OBJECT
  protected:
    Sounds sounds;
    bool ended = false;

  private slots:
    void init() {
        if (!platform::screens::isRegistered(tables::Screen::jigsaw)) {
            shell::registerScreens();
            for (int size = 0; size < 3; ++size) {  // only loaded
                const tables::Screen board = tables::boardScreen(size);
                platform::screens::registerScreen(board, [board] {
                    return new platform::Form(board, platform::FormKind::FullSize);
                });
            }
        }
        dir_ = std::make_unique<QTemporaryDir>();
        for (const char* folder : {"Images", "wav"})
            QVERIFY(QFile::link(kGameFolder + "/" + folder, dir_->filePath(folder)));
        previousFolder_ = QDir::currentPath();
        QVERIFY(QDir::setCurrent(dir_->path()));
        shell::module1() = shell::Module1{};
        sounds.clear();
        ended = false;
        platform::setSoundObserver([this](const std::string& file) { sounds.push_back(file); });
        platform::screens::setEndHandler([this] { ended = true; });
    }

    void cleanup() {
        platform::screens::endProgram();  // unloads every screen
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        platform::setSoundObserver(nullptr);
        QDir::setCurrent(previousFolder_);
        dir_.reset();
    }

  private:
    std::unique_ptr<QTemporaryDir> dir_;
    QString previousFolder_;
};

template <class Screen>
Screen& screen() {
    return platform::screens::get<Screen>(Screen::kScreen);
}

inline void writeFile(const char* name, const QByteArray& bytes) {
    QFile f(name);
    QVERIFY(f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size());
}

// A well-formed highscore.inf whose one entry, 4x4 level 1, is Ann's 35 seconds.
inline QByteArray highscoreWithOneEntry() {
    records::FastestTimes tables;
    tables.besttime[0][0][0] = 35;
    tables.bestname[0][0][0] = "Ann";
    return QByteArray::fromStdString(records::highscoreText(tables));
}

// A player's left click on a control of a shown screen: in its middle, or on
// the indicator at the left of a check box or option button; or two at once,
// a double-click.
inline void click(QWidget& control, bool onIndicator = false, bool twice = false) {
    QWindow* window = control.window()->windowHandle();
    QVERIFY2(window && control.window()->isVisible(), "clicks need a shown screen");
    const QPoint at = onIndicator ? QPoint(8, control.height() / 2) : control.rect().center();
    const QPoint inWindow = control.mapTo(control.window(), at);
    if (twice)
        QTest::mouseDClick(window, Qt::LeftButton, Qt::NoModifier, inWindow);
    else
        QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, inWindow);
}

inline void doubleClick(QWidget& control, bool onIndicator = false) {
    click(control, onIndicator, true);
}

}  // namespace shell_test
