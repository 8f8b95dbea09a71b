#pragma once
// The game's own rounded lettering: each glyph is a centre line stroked with
// round caps and joins, so the result looks the same on every machine,
// whatever fonts are installed. Glyph units: the cap height runs from y = 0
// to y = 100 (baseline) once stroked; x starts at 0.
#include <QPainterPath>
#include <string>

namespace assets {

struct Glyph {
    QPainterPath centreLine;
    double advance = 0;  // width of the glyph's box, before letter spacing
};

// Digits 1-6, capitals A-F and P, and the small letters of "imbalo".
Glyph glyph(char c);

// The filled outline of a stroked glyph, one closed shape.
QPainterPath glyphOutline(char c, double strokeWidth);

// A word set on one line, each letter's outline placed at its pen position.
struct SetWord {
    std::vector<QPainterPath> letters;
    double width = 0;
};
SetWord setWord(const std::string& word, double strokeWidth, double spacing);

}  // namespace assets
