// The translation files against the texts the tables mark: every marked text
// is translated in every language, and a translation keeps the places its
// numbers go and the space that joins it to the text said after it.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStringList>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <string>

namespace {

struct Message {
    QString context, source, translation;
    bool finished = true;
};

// The live messages of a .ts file; those lupdate has set aside as gone from
// the sources are left out.
QList<Message> read(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) ADD_FAILURE() << "cannot read " << path.toStdString();
    QList<Message> messages;
    QString context;
    Message m;
    bool gone = false;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == u"name") context = xml.readElementText();
        if (xml.name() == u"message") m = Message{context, {}, {}, true};
        if (xml.name() == u"source") m.source = xml.readElementText();
        if (xml.name() == u"translation") {
            const auto type = xml.attributes().value("type");
            gone = type == u"vanished" || type == u"obsolete";
            m.finished = type.isEmpty();
            m.translation = xml.readElementText();
            if (!gone) messages << m;
        }
    }
    EXPECT_FALSE(xml.hasError()) << path.toStdString() << ": " << xml.errorString().toStdString();
    return messages;
}

QStringList languageFiles() {
    const QDir folder(PIMBALO_SOURCE_DIR "/translations");
    QStringList files;
    for (const QString& name : folder.entryList({"pimbalo_*.ts"}, QDir::Files))
        files << folder.filePath(name);
    return files;
}

// What lupdate finds marked in the tables today.
QList<Message> markedTexts() {
    QTemporaryDir scratch;
    const QString ts = scratch.filePath("marked.ts");
    QProcess lupdate;
    lupdate.setWorkingDirectory(PIMBALO_SOURCE_DIR);
    lupdate.start(PIMBALO_LUPDATE, {"-silent", "tables/texts.h", "tables/pictures.cpp", "-ts", ts});
    EXPECT_TRUE(lupdate.waitForFinished(60000) && lupdate.exitCode() == 0)
        << lupdate.readAllStandardError().toStdString();
    return read(ts);
}

QString key(const Message& m) {
    return m.context + " | " + m.source;
}

// "%1 %2", whatever their order and however often each comes.
std::string numberPlaces(const QString& text) {
    QStringList places;
    for (const auto& match : QRegularExpression("%\\d+").globalMatch(text))
        if (!places.contains(match.captured())) places << match.captured();
    places.sort();
    return places.join(' ').toStdString();
}

}  // namespace

TEST(Translations, EveryMarkedTextIsTranslatedInEveryLanguage) {
    const QList<Message> marked = markedTexts();
    ASSERT_FALSE(marked.isEmpty());
    const QStringList files = languageFiles();
    ASSERT_FALSE(files.isEmpty());
    for (const QString& file : files) {
        QHash<QString, Message> translated;
        for (const Message& m : read(file)) translated.insert(key(m), m);
        for (const Message& m : marked) {
            const auto found = translated.constFind(key(m));
            EXPECT_TRUE(found != translated.cend() && found->finished &&
                        !found->translation.isEmpty())
                << QDir(file).dirName().toStdString() << ": " << key(m).toStdString();
        }
    }
}

TEST(Translations, KeepTheNumbersAndTheSpaceBeforeWhatFollows) {
    for (const QString& file : languageFiles()) {
        for (const Message& m : read(file)) {
            const std::string where =
                QDir(file).dirName().toStdString() + ": " + key(m).toStdString();
            EXPECT_EQ(numberPlaces(m.translation), numberPlaces(m.source)) << where;
            EXPECT_EQ(m.translation.endsWith(' '), m.source.endsWith(' ')) << where;
        }
    }
}
