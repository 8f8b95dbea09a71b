#include "records/utf8.h"

namespace records {

namespace {

bool isContinuation(unsigned char byte) {
    return (byte & 0xC0) == 0x80;
}

// Length of the well-formed UTF-8 sequence starting at text[0]; 0 when the
// bytes there are not valid UTF-8 (stray continuation, truncated, overlong,
// surrogate or beyond U+10FFFF).
std::size_t sequenceLength(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text[0]);
    std::size_t length = 0;
    char32_t codePoint = 0, smallest = 0;
    if (lead < 0x80) return 1;
    if ((lead & 0xE0) == 0xC0) {
        length = 2;
        codePoint = lead & 0x1F;
        smallest = 0x80;
    } else if ((lead & 0xF0) == 0xE0) {
        length = 3;
        codePoint = lead & 0x0F;
        smallest = 0x800;
    } else if ((lead & 0xF8) == 0xF0) {
        length = 4;
        codePoint = lead & 0x07;
        smallest = 0x10000;
    } else {
        return 0;
    }
    if (text.size() < length) return 0;
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (!isContinuation(byte)) return 0;
        codePoint = (codePoint << 6) | (byte & 0x3F);
    }
    const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    if (codePoint < smallest || surrogate || codePoint > 0x10FFFF) return 0;
    return length;
}

}  // namespace

bool isUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t length = sequenceLength(bytes);
        if (length == 0) return false;
        bytes.remove_prefix(length);
    }
    return true;
}

std::string latin1ToUtf8(std::string_view latin1) {
    std::string out;
    out.reserve(latin1.size());
    for (char c : latin1) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80) {
            out.push_back(c);
        } else {
            out.push_back(static_cast<char>(0xC0 | (byte >> 6)));
            out.push_back(static_cast<char>(0x80 | (byte & 0x3F)));
        }
    }
    return out;
}

std::string utf8OrLatin1(std::string_view bytes) {
    return isUtf8(bytes) ? std::string(bytes) : latin1ToUtf8(bytes);
}

std::string_view firstCharacters(std::string_view utf8, std::size_t count) {
    std::size_t end = 0, characters = 0;
    for (; end < utf8.size(); ++end) {
        // Each character starts with a byte that is no continuation byte.
        if (isContinuation(static_cast<unsigned char>(utf8[end]))) continue;
        if (characters == count) break;
        ++characters;
    }
    return utf8.substr(0, end);
}

}  // namespace records
