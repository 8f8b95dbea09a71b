#include "platform/translation.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTranslator>
#include <QWidget>
#include <memory>

#include "platform/form.h"

namespace platform {
namespace {

// Every context the tables mark texts in.
constexpr const char* kContexts[] = {"Common",  "Board",        "Rules", "Title",
                                     "Options", "FastestTimes", "Error", "Pictures"};

std::unique_ptr<QTranslator>& installed() {
    static std::unique_ptr<QTranslator> translator;
    return translator;
}

bool isEnglish(const QString& language) {
    return language == QLatin1String("en") || language.startsWith(QLatin1String("en-")) ||
           language.startsWith(QLatin1String("en_"));
}

}  // namespace

QString translationFile(const QStringList& uiLanguages, const QString& folder) {
    for (const QString& language : uiLanguages) {
        if (isEnglish(language)) return {};
        // de-Latn-AT, de-AT, de: each shorter name is tried in turn.
        for (QString name = QString(language).replace(QLatin1Char('-'), QLatin1Char('_'));
             !name.isEmpty(); name.truncate(std::max<qsizetype>(name.lastIndexOf('_'), 0))) {
            const QString file =
                folder + QStringLiteral("/pimbalo_") + name + QStringLiteral(".qm");
            if (QFileInfo(file).isFile()) return file;
        }
    }
    return {};
}

bool useTranslationFile(const QString& file) {
    if (installed()) QCoreApplication::removeTranslator(installed().get());
    installed().reset();
    if (file.isEmpty()) return true;
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(file)) return false;
    QCoreApplication::installTranslator(translator.get());
    installed() = std::move(translator);
    return true;
}

QString installTranslation(const QString& folder) {
    const QString file = translationFile(QLocale::system().uiLanguages(), folder);
    return useTranslationFile(file) ? file : QString();
}

const char* textContext(tables::Screen screen) {
    switch (screen) {
        case tables::Screen::Titlefrm:
            return "Title";
        case tables::Screen::Startplay2:
            return "Options";
        case tables::Screen::Morvelrules:
            return "Rules";
        case tables::Screen::jigsaw:
        case tables::Screen::jigsaw5x5:
        case tables::Screen::jigsaw6x6:
            return "Board";
        case tables::Screen::highscores:
            return "FastestTimes";
        case tables::Screen::Grey:
            break;
    }
    return "Common";
}

QString translated(const char* context, const QString& text) {
    if (!installed() || text.isEmpty()) return text;
    const QString found = installed()->translate(context, text.toUtf8().constData());
    return found.isEmpty() ? text : found;
}

QString translated(const char* context, const char* text) {
    return translated(context, QString::fromUtf8(text));
}

QString translatedFor(const QWidget& control, const QString& text) {
    if (!installed() || text.isEmpty()) return text;
    const auto* form = qobject_cast<const Form*>(control.window());
    const char* own = form ? textContext(form->screen()) : "Common";
    const QByteArray source = text.toUtf8();
    QString found = installed()->translate(own, source.constData());
    for (const char* context : kContexts) {
        if (!found.isEmpty()) break;
        found = installed()->translate(context, source.constData());
    }
    return found.isEmpty() ? text : found;
}

}  // namespace platform
