#pragma once
// Names are UTF-8 in memory and Latin-1 (one byte a character) in
// highscore.inf.
#include <string>
#include <string_view>

namespace records {

std::string latin1ToUtf8(std::string_view latin1);

// Characters above U+00FF, and bytes that are not valid UTF-8, become '?'.
std::string utf8ToLatin1(std::string_view utf8);

}  // namespace records
