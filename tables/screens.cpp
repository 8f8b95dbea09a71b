#include "tables/screens.h"

namespace tables {
namespace {

// screenName looks a screen up by its id as an index.
constexpr bool tableFollowsTheIds() {
    for (std::size_t i = 0; i < kScreens.size(); ++i)
        if (static_cast<std::size_t>(kScreens[i].screen) != i) return false;
    return true;
}
static_assert(tableFollowsTheIds(), "kScreens lists the screens in the order of their ids");

}  // namespace
}  // namespace tables
