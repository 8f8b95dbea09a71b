#include "shell/register.h"

#include "shell/grey.h"
#include "shell/morvelrules.h"
#include "shell/startplay2.h"
#include "shell/titlefrm.h"

namespace shell {

void registerScreens() {
    using platform::screens::registerScreen;
    registerScreen(Titlefrm::kName, [] { return new Titlefrm; });
    registerScreen(Grey::kName, [] { return new Grey; });
    registerScreen(Startplay2::kName, [] { return new Startplay2; });
    registerScreen(Morvelrules::kName, [] { return new Morvelrules; });
}

}  // namespace shell
