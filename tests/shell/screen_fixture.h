#pragma once
// What the shell's screen tests share: a fresh game folder for each test (a
// temporary folder with the game's Images and wav linked in, where the .inf
// files are written), a log of the sounds asked for, the program's end,
// stand-in board screens, and clicks sent through the window like a player's.
#include <QString>
#include <QTemporaryDir>
#include <QWidget>
#include <memory>
#include <string>
#include <vector>

namespace shell_test {

class ScreenFixture {
  public:
    // Registers the shell's screens and the stand-in boards (once per run).
    static void registerOnce();

    // Per test: new folder, zeroed shared state, empty logs. `images` is the
    // Images folder to link in (the game's by default).
    void begin(const QString& images = QString());
    // Per test: every screen unloaded and deleted, working folder restored.
    void end();

    QString path(const QString& name) const;
    void writeFile(const QString& name, const QByteArray& bytes) const;
    QByteArray readFile(const QString& name) const;

    std::vector<std::string> sounds;
    bool ended = false;

  private:
    std::unique_ptr<QTemporaryDir> dir_;
    QString previousFolder_;
};

// The game folder the build made (pictures and sounds).
QString gameFolder();

// A full, well-formed highscore.inf with one entry: 4x4 level 1, rank 1.
QByteArray highscoreWithOneEntry(int seconds, const std::string& name);

// Left button pressed and released at `at` (default: the middle) of a control
// of a shown screen, sent to its window as a player's click.
void click(QWidget& control);
void clickAt(QWidget& control, QPoint at);
// Check boxes and option buttons react to their indicator, at the left.
void clickIndicator(QWidget& control);

// The board screens the options screen has shown, in order.
std::vector<std::string>& boardsShown();
// What a board's "Exit" does for the options screen: show it, unload the board.
void leaveBoard(const std::string& name);

}  // namespace shell_test
