#pragma once
// The game in the desktop's language. Texts are kept in English everywhere
// (the tables, the engine, what a label reports as its caption); a control
// looks up the translation of its text only to show it. With no translation
// installed every look-up gives the English text back unchanged.
#include <QString>
#include <QStringList>

#include "tables/screens.h"

class QWidget;

namespace platform {

// The translation file in `folder` for the first of `uiLanguages` (as
// QLocale::uiLanguages gives them, most wanted first) that has one; a
// regional variant falls back to its language (de-AT to de). Empty when
// English comes first, since English needs none, or when no language has a
// file.
QString translationFile(const QStringList& uiLanguages, const QString& folder);

// Shows every text through the translation in `file` from now on; an empty
// name goes back to English. False when the file cannot be read.
bool useTranslationFile(const QString& file);

// Installs the translation of the desktop's language from `folder`, if there
// is one, and returns its file (empty when none).
QString installTranslation(const QString& folder);

// The translation context of the texts a screen shows.
const char* textContext(tables::Screen screen);

// `text` in the player's language, looked up by its context and English text.
QString translated(const char* context, const char* text);
QString translated(const char* context, const QString& text);

// `text` as shown by a control: in the context of the control's screen,
// failing that in the other contexts (the rules of a board size appear on
// the rules screen and on the board; common texts on several screens).
QString translatedFor(const QWidget& control, const QString& text);

}  // namespace platform
