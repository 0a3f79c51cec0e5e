#pragma once
// The symbol font, loaded from the program's own files.

#include <QFont>

#include "platform/data_files.h"
#include "platform/messages.h"

namespace tolvanis {

inline constexpr const char* kSymbolFontFamily = "HORARY";

// Makes the font known to this process from HORARY.ttf and HORARY-Bold.ttf, once. False when one of them
// cannot be loaded.
bool LoadSymbolFont(const DataFiles& files);
bool SymbolFontIsLoaded();

// The font at a size in pixels, unhinted, so that outlines keep their shape at every size.
QFont SymbolFont(double pixels, bool bold);

// What the user is told when the font cannot be loaded.
void TellSymbolFontMissing(Messages& messages);

}  // namespace tolvanis
