// The installed icon set: every PNG decodes at the size its folder names, the
// set covers the sizes menus and docks ask for, and the scalable icon is
// well-formed SVG.   icons_test <hicolor folder> <app id>
#include <QDir>
#include <QImageReader>
#include <QXmlStreamReader>
#include <QtTest>

class IconsTest : public QObject {
    Q_OBJECT
  public:
    IconsTest(QString theme, QString id) : theme_(std::move(theme)), id_(std::move(id)) {}

  private slots:
    void everySizeDecodesAtItsFolderSize() {
        QStringList sizes = QDir(theme_).entryList({"*x*"}, QDir::Dirs);
        for (const char* wanted : {"32x32", "48x48", "64x64", "128x128", "256x256"})
            QVERIFY2(sizes.contains(wanted), wanted);
        for (const QString& size : sizes) {
            const QString file = QStringLiteral("%1/%2/apps/%3.png").arg(theme_, size, id_);
            QImageReader reader(file);
            const QImage image = reader.read();
            QVERIFY2(!image.isNull(), qPrintable(file + ": " + reader.errorString()));
            const int side = size.section('x', 0, 0).toInt();
            QCOMPARE(image.size(), QSize(side, size.section('x', 1).toInt()));
            QVERIFY2(image.hasAlphaChannel(), qPrintable(file));
            // Rounded corners: see-through at the corner, solid in the middle.
            QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
            QCOMPARE(qAlpha(image.pixel(side / 2, side / 2)), 255);
        }
    }

    void scalableIconIsWellFormedSvg() {
        QFile file(QStringLiteral("%1/scalable/apps/%2.svg").arg(theme_, id_));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&file);
        int paths = 0;
        QString root;
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement) continue;
            if (root.isEmpty()) root = xml.name().toString();
            if (xml.name() == QLatin1String("path")) {
                ++paths;
                QVERIFY(!xml.attributes().value("d").isEmpty());
            }
        }
        QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
        QCOMPARE(root, QStringLiteral("svg"));
        QVERIFY(paths > 0);
    }

  private:
    QString theme_, id_;
};

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    if (argc != 3) return 2;
    IconsTest test(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]));
    char* self[] = {argv[0]};
    return QTest::qExec(&test, 1, self);
}

#include "icons_test.moc"
