#pragma once
// The system's dialog for saving a file.

#include <string>

#include "platform/file_dialogs.h"

namespace tolvanis {

// As FileDialogs::ChooseSaveFile.
std::string ShowSaveDialog(SaveRequest request);

}  // namespace tolvanis
