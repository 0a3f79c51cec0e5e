#pragma once
// The atlas that is delivered with the program, set up so that it is found like any other one.

#include <string>

#include "birthdata/atlas_exchange.h"
#include "platform/files.h"
#include "platform/result.h"

namespace tolvanis {

inline constexpr std::string_view kOwnAtlasDirectory = "ATLAS";
inline constexpr std::string_view kOwnAtlasProgram = "tolvanis-atlas";

// Makes the directory ATLAS below the application directory with an ATLAS.EXE that starts the delivered atlas
// program and a PCATPATH.TXT that names the directory itself. What is there and right stays, and so does all
// of it where ATLAS.EXE is another program. Gives the directory with a separator at its end; a fault says
// what could not be made, that the program is missing, or that the place is taken.
Result<std::string> PrepareOwnAtlas(const Path& appDirectory, const Path& programDirectory);

// Where the atlas is looked for: in the user's directory where that exists, else in the delivered one's.
std::string AtlasDirectoryOf(const std::string& settings, const std::string& own);

}  // namespace tolvanis
