// Where the game reads its pictures and keeps its two files: a game folder of
// its own, an installed copy with a folder per player, and a player folder
// that cannot be had.
#include "app/run_folders.h"

#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include "platform/files.h"

namespace {

void writeFile(const QString& path, const QByteArray& bytes = "x") {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

// A folder holding the game's pictures and sounds, as the build draws them:
// two of the files every copy has, and a sound.
QString makeGameFolder(const QString& folder) {
    writeFile(folder + "/Images/pimbalo.jpg");
    writeFile(folder + "/Images/H_POINT.cur");
    writeFile(folder + "/wav/click.wav");
    return QDir(folder).canonicalPath();
}

QStringList filesBelow(const QString& folder) {
    QStringList files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) files << it.next();
    files.sort();
    return files;
}

}  // namespace

class RunFoldersTests : public QObject {
    Q_OBJECT
    QString startedIn_;
    QTemporaryDir root_;

    QString path(const QString& relative) const { return root_.filePath(relative); }

  private slots:
    void init() { startedIn_ = QDir::currentPath(); }
    void cleanup() {
        QDir::setCurrent(startedIn_);
        platform::setDataFolder({});
        QDir(root_.path()).removeRecursively();
        QDir().mkpath(root_.path());
    }

    void aGameFolderKeepsEverythingInItself() {
        const QString game = makeGameFolder(path("build/game"));
        QDir().mkpath(path("home/Images"));  // a home folder's own pictures
        const QString home = QDir(path("home")).canonicalPath();

        // Started in the game folder, or from elsewhere by its full path.
        for (const QString& start : {game, home}) {
            const app::RunFolders used =
                app::settle({start, game, "../share/games/pimbalo", path("player"), {}});
            QCOMPARE(used.data, game);
            QCOMPARE(used.work, game);
            QCOMPARE(QDir::currentPath(), game);
            QVERIFY(platform::findGameFile("IMAGES\\Pimbalo.JPG"));
        }
        QVERIFY(!QFileInfo::exists(path("player")));
    }

    void anInstalledGameKeepsTheFilesInThePlayersFolder() {
        const QString data = makeGameFolder(path("prefix/share/games/pimbalo"));
        QDir().mkpath(path("prefix/games"));
        const QStringList installed = filesBelow(path("prefix"));
        // Even started inside another game folder, the installed copy is used.
        const QString elsewhere = makeGameFolder(path("copy"));
        const QString player = path("xdg data/pimbalo");

        const app::RunFolders used =
            app::settle({elsewhere, path("prefix/games"), "../share/games/pimbalo", player, {}});
        QCOMPARE(used.data, data);
        QCOMPARE(used.work, player);
        QCOMPARE(QDir::currentPath(), QDir(player).canonicalPath());
        QCOMPARE(platform::findGameFile("wav\\click.wav").value_or(""), data + "/wav/click.wav");

        writeFile("lastgame.inf");  // what the board's "Exit" does
        QVERIFY(QFileInfo::exists(player + "/lastgame.inf"));
        QCOMPARE(filesBelow(path("prefix")), installed);
    }

    void withoutAPlayersFolderTheGamePlaysButKeepsNothing() {
        const QString data = makeGameFolder(path("prefix/share/games/pimbalo"));
        writeFile(path("not a folder"));  // where $XDG_DATA_HOME should be
        QDir::setCurrent(path("prefix"));

        const app::RunFolders used = app::settle({path("prefix"),
                                                  path("prefix/games"),
                                                  "../share/games/pimbalo",
                                                  path("not a folder/pimbalo"),
                                                  {}});
        QCOMPARE(used.data, data);
        QVERIFY(used.work.isEmpty());
        QVERIFY(platform::findGameFile("Images\\pimbalo.jpg"));
        QVERIFY(!QFile("lastgame.inf").open(QIODevice::WriteOnly));
        QVERIFY(!QFile("highscore.inf").open(QIODevice::ReadOnly));
        QCOMPARE(filesBelow(root_.path()).size(), 4);  // the three game files and the blocker
    }

    // A copy that lacks its title picture is still found, installed or not
    // (its title screen then shows without it); one file of that name in a
    // folder of the player's is no game folder.
    void aCopyWithoutItsTitlePictureIsStillFound() {
        const QString data = makeGameFolder(path("prefix/share/games/pimbalo"));
        QFile::remove(data + "/Images/pimbalo.jpg");
        const QString elsewhere = QDir(path("home")).absolutePath();
        writeFile(elsewhere + "/Images/pimbalo.jpg");
        app::RunFolders used =
            app::settle({elsewhere, path("prefix/games"), "../share/games/pimbalo", path("p"), {}});
        QCOMPARE(used.data, data);

        const QString game = makeGameFolder(path("build/game"));
        writeFile(game + "/Images/logo4.jpg");
        QFile::remove(game + "/Images/pimbalo.jpg");
        used = app::settle({elsewhere, game, "../share/games/pimbalo", path("p"), {}});
        QCOMPARE(used.data, game);
        QCOMPARE(used.work, game);
    }

    void withoutPicturesTheGameStaysWhereItWasStarted() {
        QDir().mkpath(path("somewhere/images"));
        const QString start = QDir(path("somewhere")).canonicalPath();
        const app::RunFolders used =
            app::settle({start, path("bin"), "../share/games/pimbalo", path("player"), {}});
        QCOMPARE(used.work, start);
        QCOMPARE(QDir::currentPath(), start);
    }

    // The installed copy's sound module wins over a stray one beside the
    // program; the build tree's sits beside it; without one the game is silent.
    void theSoundModuleIsTheInstalledOneElseTheOneBesideTheProgram() {
        const QString name = QStringLiteral(PIMBALO_SOUND_MODULE_NAME);
        app::Surroundings around{path("start"), path("prefix/games"), "../share/games/pimbalo",
                                 path("player"), "../lib/pimbalo"};
        QCOMPARE(app::soundModule(around), QString());
        writeFile(path("prefix/games/") + name);
        QCOMPARE(app::soundModule(around), path("prefix/games/") + name);
        QDir().mkpath(path("prefix/lib/pimbalo/") + name);  // a folder is not a module
        QCOMPARE(app::soundModule(around), path("prefix/games/") + name);
        QDir(path("prefix/lib/pimbalo/") + name).removeRecursively();
        writeFile(path("prefix/lib/pimbalo/") + name);
        QCOMPARE(app::soundModule(around), path("prefix/lib/pimbalo/") + name);
    }
};

QTEST_GUILESS_MAIN(RunFoldersTests)
#include "run_folders_test.moc"
