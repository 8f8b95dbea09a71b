#pragma once
// The state every screen shares for the whole run: the options with the
// chosen size and level, the start-up load result and the fastest-times
// tables. All 16-bit signed and zero at program start; on/off values count as
// on only when they equal 1.
#include <cstdint>

#include "records/fastest_times.h"
#include "tables/options.h"

namespace shell {

struct Module1 : tables::Options, records::FastestTimes {
    std::int16_t loadfailed = 0;
    std::int16_t newrank = 0;
};

// The one instance for the run.
Module1& module1();

}  // namespace shell
