#pragma once
// The options file.

#include "chart/options.h"
#include "platform/files.h"

namespace tolvanis {

inline constexpr std::string_view kOptionsFileName = "OPTIONS.OPT";
inline constexpr std::string_view kOptionsMasterName = "OPTIONS.MAS";

// Reads line n's number, from its first 7 characters, into option n, up to the first empty line or the end of
// the file; options without a line keep their values, lines beyond the 196th are ignored. A fault names the
// file that cannot be read.
Result<void> ReadOptions(const Path& applicationDirectory, Options& options);

}  // namespace tolvanis
