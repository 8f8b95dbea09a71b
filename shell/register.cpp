#include "shell/register.h"

#include "shell/grey.h"
#include "shell/morvelrules.h"
#include "shell/startplay2.h"
#include "shell/titlefrm.h"

namespace shell {

void registerScreens() {
    using platform::screens::registerScreen;
    registerScreen(Titlefrm::kScreen, [] { return new Titlefrm; });
    registerScreen(Grey::kScreen, [] { return new Grey; });
    registerScreen(Startplay2::kScreen, [] { return new Startplay2; });
    registerScreen(Morvelrules::kScreen, [] { return new Morvelrules; });
}

}  // namespace shell
