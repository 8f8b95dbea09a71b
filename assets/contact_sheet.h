#pragma once
#include <QString>

namespace assets {

// Every generated picture and the cursor, each labelled with its path, on one
// PNG for review. Returns false when a file is missing or the PNG cannot be written.
bool writeContactSheet(const QString& gameFolder, const QString& pngPath);

}  // namespace assets
