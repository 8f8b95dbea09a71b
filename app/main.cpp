// Pimbalo: starts at the title screen. There are no command-line options.
#include <QApplication>

#include "app/identity.h"
#include "app/run_folders.h"
#include "board/register.h"
#include "platform/display_server.h"
#include "platform/form.h"
#include "platform/sound.h"
#include "platform/translation.h"
#include "records/highscores.h"
#include "shell/register.h"
#include "shell/titlefrm.h"

int main(int argc, char* argv[]) {
    platform::preferX11OnWayland();
    app::setDesktopIdentity();
    QApplication application(argc, argv);
    // Screens come and go (the title screen is unloaded before the options
    // screen's "Exit" brings it back); only "Exit" ends the game.
    QApplication::setQuitOnLastWindowClosed(false);
    const app::Surroundings around = app::surroundings();
    const app::RunFolders folders = app::settle(around);
    // The desktop's language, when the game has it; the translations lie
    // beside the pictures and sounds.
    platform::installTranslation(folders.data + QStringLiteral("/translations"));
    platform::setSoundModule(app::soundModule(around));
    QApplication::setWindowIcon(app::gameIcon());

    shell::registerScreens();
    board::registerScreens();
    records::registerScreens();
    platform::screens::show(shell::Titlefrm::kScreen);
    return application.exec();
}
