#include "shell/module1.h"

namespace shell {

Module1& module1() {
    static Module1 state;
    return state;
}

}  // namespace shell
