// Draws every picture, the hand cursor, the sounds and the icon of the game
// into a game folder:
//           pimbalo_assets <game folder>
// or lays the drawn pictures out for review:
//           pimbalo_assets --contact-sheet <game folder> <sheet.png>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <cstdio>

#include "canvas.h"
#include "catalogue.h"
#include "contact_sheet.h"
#include "cursor.h"
#include "icon.h"
#include "sounds.h"

namespace {

bool writeBytes(const QString& path, const QByteArray& bytes) {
    assets::ensureParentFolder(path);
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
           file.write(bytes) == bytes.size();
}

// The icon set in the desktop's theme layout, so it installs as it stands.
bool writeIcons(const QDir& game) {
    const QString apps = QStringLiteral("icons/hicolor/%1/apps/" PIMBALO_APP_ID);
    bool ok = true;
    for (int side : assets::iconSides()) {
        const QString path = game.filePath(apps.arg(QStringLiteral("%1x%1").arg(side)) + ".png");
        ok = assets::ensureParentFolder(path) && assets::renderIcon(side).save(path, "PNG") && ok;
    }
    return writeBytes(game.filePath(apps.arg(QStringLiteral("scalable")) + ".svg"),
                      assets::iconSvg()) &&
           ok;
}

int generate(const QString& folder) {
    const QDir game(folder);
    int failures = 0;
    for (const assets::PictureFile& file : assets::allPictureFiles()) {
        if (!assets::saveJpeg(file.render(), game.filePath(file.path))) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file.path));
            ++failures;
        }
    }
    const QByteArray cursor = assets::curFile(assets::handPointer(), assets::kHandHotSpot);
    if (!writeBytes(game.filePath(assets::gameFilePath(tables::kHandCursor)), cursor)) ++failures;
    for (const assets::Sound& sound : assets::gameSounds()) {
        const auto bytes = assets::wavFile(sound.samples);
        const QByteArray data(reinterpret_cast<const char*>(bytes.data()), int(bytes.size()));
        if (!writeBytes(game.filePath("wav/" + QString::fromStdString(sound.file)), data)) {
            std::fprintf(stderr, "cannot write %s\n", sound.file.c_str());
            ++failures;
        }
    }
    failures += writeIcons(game) ? 0 : 1;
    return failures == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() == 4 && args[1] == "--contact-sheet")
        return assets::writeContactSheet(args[2], args[3]) ? 0 : 1;
    if (args.size() == 2) return generate(args[1]);
    std::fprintf(stderr,
                 "usage: pimbalo_assets <game folder>\n"
                 "       pimbalo_assets --contact-sheet <game folder> <sheet.png>\n");
    return 2;
}
