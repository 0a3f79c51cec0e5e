#pragma once
// The options file.

#include "chart/options.h"
#include "platform/files.h"

namespace tolvanis {

inline constexpr std::string_view kOptionsFileName = "OPTIONS.OPT";
inline constexpr std::string_view kOptionsMasterName = "OPTIONS.MAS";

// Reads line n's number, from its first 7 characters, into option n, up to the first empty line or the end of
// the file; options without a line keep their values, lines beyond the 196th are ignored. Gives the number of
// lines in front of that end. A fault names the file that cannot be read.
Result<int> ReadOptions(const Path& applicationDirectory, Options& options);

// The delivered options: the directory's own master copy, else the installed one; empty when there is
// neither.
Path OptionsMaster(const Path& applicationDirectory, const Path& installedDirectory);

// Puts the master copy in the place of the directory's options file.
Result<void> RestoreOptions(const Path& applicationDirectory, const Path& master);

// Whether any option has a value: a file of other content reads as nothing but zeros.
bool HoldsOptions(const Options& options);

}  // namespace tolvanis
