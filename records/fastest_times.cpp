#include "records/fastest_times.h"

#include <cstdint>
#include <limits>
#include <utility>

namespace records {

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

}  // namespace

std::int16_t timeFromText(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);

    bool negative = false;
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        negative = text.front() == '-';
        text.remove_prefix(1);
    }
    if (text.empty()) return 0;

    // Accumulate as a negative number so that -32768 fits without overflow.
    constexpr int kMin = std::numeric_limits<std::int16_t>::min();
    constexpr int kMax = std::numeric_limits<std::int16_t>::max();
    int value = 0;
    for (char c : text) {
        if (c < '0' || c > '9') return 0;
        value = value * 10 - (c - '0');
        if (value < kMin) return 0;
    }
    if (!negative) {
        if (-value > kMax) return 0;
        value = -value;
    }
    return static_cast<std::int16_t>(value);
}

bool rankTime(FastestTimes& tables, int boardsize, int level, std::string_view elapsed,
              std::int16_t loadfailed, std::int16_t& newrank) {
    if (loadfailed == 1) return false;
    if (boardsize < 0 || boardsize >= kSizes || level < 0 || level >= kLevels) return false;

    const std::int16_t t = timeFromText(elapsed);
    // A time of 0 (the clock wraps from 9999 to 0) is never offered. Stored, it
    // would take rank 1 and push rank 5 out, yet pass for an empty entry: the
    // screen hides it, and the next insertion climbs past it, which drops one
    // real entry and leaves the new time in the table twice. The clock never
    // shows a negative count, so only times above 0 are real.
    if (t <= 0) return false;

    std::int16_t* times = tables.besttime[boardsize][level];
    std::string* names = tables.bestname[boardsize][level];
    bool placed = false;
    // From rank 5 up to rank 1, never stopping early: every empty or
    // slower-or-equal entry lets the new time climb past it, so among equal
    // times the most recent ranks highest.
    for (int p = kRanks - 1; p >= 0; --p) {
        const bool beaten = times[p] == 0 || t <= times[p];
        if (!beaten) continue;
        placed = true;
        newrank = static_cast<std::int16_t>(p);
        if (p + 1 < kRanks) {  // the old rank-5 entry simply falls off
            times[p + 1] = times[p];
            names[p + 1] = std::move(names[p]);
        }
        times[p] = t;
        names[p].clear();
    }
    return placed;
}

}  // namespace records
