#pragma once
// Marks a text the player reads or hears for Qt's translation tools, which
// find the marks by this name in the source. The text stays a plain
// constant string here; the screens look up its translation, by the same
// context and text, when they show it.
#ifndef QT_TRANSLATE_NOOP
#define QT_TRANSLATE_NOOP(scope, x) x
#endif
