#pragma once
// Names are UTF-8, in memory and in highscore.inf. Older copies of the game
// wrote them as Latin-1 (one byte a character); a name line that is not
// valid UTF-8 is taken to be one of those.
#include <cstddef>
#include <string>
#include <string_view>

namespace records {

// Well-formed UTF-8 throughout: no stray or missing continuation bytes, no
// overlong forms, surrogates or code points beyond U+10FFFF.
bool isUtf8(std::string_view bytes);

std::string latin1ToUtf8(std::string_view latin1);

// The bytes as UTF-8 text: unchanged when they are UTF-8, else read as
// Latin-1. (Latin-1 that happens to be valid UTF-8, such as "Ã©", cannot be
// told apart and reads as UTF-8; real names hardly ever look like that.)
std::string utf8OrLatin1(std::string_view bytes);

// The first `count` characters of UTF-8 text, counted as code points, so a
// sequence is never cut in half.
std::string_view firstCharacters(std::string_view utf8, std::size_t count);

}  // namespace records
