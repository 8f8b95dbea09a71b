#include "contact_sheet.h"

#include <QDir>
#include <QImageReader>
#include <QPainter>

#include "canvas.h"
#include "catalogue.h"

namespace assets {

namespace {

struct Entry {
    QString label;
    QImage image;
};

QImage fitted(const QImage& image, int box) {
    if (image.width() <= box && image.height() <= box) {
        // Small pictures (markers, cursor) are blown up so their details show.
        const int factor = std::max(1, box / std::max(image.width(), image.height()) / 2);
        return image.scaled(image.size() * factor, Qt::KeepAspectRatio, Qt::FastTransformation);
    }
    return image.scaled(box, box, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

bool writeContactSheet(const QString& gameFolder, const QString& pngPath) {
    const QDir game(gameFolder);
    std::vector<Entry> entries;
    bool complete = true;
    for (const PictureFile& file : allPictureFiles()) {
        const QImage image(game.filePath(file.path));
        complete &= !image.isNull();
        entries.push_back({file.path, image});
    }
    const QString handPath = gameFilePath(tables::kHandCursor);
    QImageReader cursor(game.filePath(handPath), "cur");
    const QImage hand = cursor.read();
    complete &= !hand.isNull();
    entries.push_back({handPath, hand});

    const int box = 200;
    const int labelHeight = 30;
    const int columns = 10;
    const int rows = int(entries.size() + columns - 1) / columns;
    QImage sheet = newCanvas(columns * (box + 10) + 10, rows * (box + labelHeight + 10) + 10,
                             QColor(128, 128, 140));
    QPainter painter;
    beginPainter(painter, sheet);
    QFont font("DejaVu Sans");
    font.setPixelSize(10);
    painter.setFont(font);
    for (size_t i = 0; i < entries.size(); ++i) {
        const int x = 10 + int(i % columns) * (box + 10);
        const int y = 10 + int(i / columns) * (box + labelHeight + 10);
        if (entries[i].image.isNull()) {
            painter.fillRect(QRect(x, y, box, box), Qt::red);
        } else {
            const QImage shown = fitted(entries[i].image, box);
            painter.fillRect(QRect(x, y, box, box), QColor(110, 110, 120));
            painter.drawImage(x + (box - shown.width()) / 2, y + (box - shown.height()) / 2, shown);
        }
        painter.setPen(Qt::white);
        const QString size =
            entries[i].image.isNull()
                ? QString("missing")
                : QString("%1x%2").arg(entries[i].image.width()).arg(entries[i].image.height());
        painter.drawText(QRect(x, y + box + 2, box, labelHeight),
                         Qt::AlignHCenter | Qt::TextWordWrap,
                         entries[i].label.mid(7) + "  " + size);
    }
    painter.end();
    return sheet.save(pngPath, "png") && complete;
}

}  // namespace assets
