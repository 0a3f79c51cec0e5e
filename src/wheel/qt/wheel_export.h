#pragma once
// The wheel as a picture file.

#include "platform/files.h"
#include "wheel/wheel_drawing.h"

namespace tolvanis {

// Writes the wheel as the window would show it at request.width x request.height pixels: SVG, PDF or PNG by
// the file name's extension, in either letter case. SVG and PDF hold the symbols as outlines. The symbol font
// must be loaded; a fault says what is wrong with the name or why the file could not be written. An existing
// file is replaced whole or not at all.
Result<void> ExportWheel(const WheelRequest& request, const Path& file);

}  // namespace tolvanis
