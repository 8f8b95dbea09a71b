// Two runs of the generator give the same bytes: a second run into a fresh
// folder matches the game folder file for file.
#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "game_folder.h"

namespace {

QStringList generatedFiles(const QDir& root) {
    QStringList files;
    for (const char* folder : {"Images", "wav"}) {
        QDirIterator it(root.filePath(folder), QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) files << root.relativeFilePath(it.next());
    }
    files.sort();
    return files;
}

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

TEST(Generator, SecondRunGivesIdenticalFiles) {
    QTemporaryDir fresh;
    ASSERT_TRUE(fresh.isValid());
    QProcess generator;
    generator.start(PIMBALO_ASSETS_EXE, {fresh.path()});
    ASSERT_TRUE(generator.waitForFinished(120000));
    ASSERT_EQ(generator.exitCode(), 0) << generator.readAllStandardError().toStdString();

    const QDir again(fresh.path());
    const QStringList files = generatedFiles(again);
    EXPECT_EQ(files, generatedFiles(gameFolder()));
    for (const QString& file : files)
        EXPECT_TRUE(contents(again.filePath(file)) == contents(gamePath(file))) << qPrintable(file);
}
