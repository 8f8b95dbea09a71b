#pragma once
// A picture or cursor file the game cannot do without is missing or unreadable:
// report the file and the reason (message box and stderr) and end the program.
#include <QString>
#include <functional>

namespace platform {

[[noreturn]] void fatalFileError(const QString& path, const QString& reason);

// Tests replace the ending with their own handler (which must not return,
// e.g. it throws). Pass an empty function to restore the default.
using FatalHandler = std::function<void(const QString& message)>;
void setFatalHandler(FatalHandler handler);

}  // namespace platform
