// The half of the sound system that needs Qt Multimedia, built as a module of
// its own. The game loads it at the first sound it plays (platform/sound.cpp),
// so the title screen comes up without the audio libraries and a game played
// with "Play Sound" off never loads them at all.
#include <QSoundEffect>
#include <QString>
#include <QUrl>

#include "platform/sound_module.h"

extern "C" Q_DECL_EXPORT void pimbalo_play_sound(const char* absolutePath) {
    static QSoundEffect* effect = new QSoundEffect();  // lives for the whole run
    effect->stop();
    effect->setSource(QUrl::fromLocalFile(QString::fromUtf8(absolutePath)));
    effect->play();  // starts once loaded; never waited on
}
