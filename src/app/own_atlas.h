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
// program and a PCATPATH.TXT that names the directory itself. What is there and right stays. Gives the
// directory with a separator at its end; a fault says what could not be made or that the program is missing.
Result<std::string> PrepareOwnAtlas(const Path& appDirectory, const Path& programDirectory);

// The atlas directory of a run: the user's where it exists, else the delivered one's.
std::string AtlasDirectoryOf(const std::string& settings, const std::string& own);

}  // namespace tolvanis
