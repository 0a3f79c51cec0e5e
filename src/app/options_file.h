#pragma once
// The options file.

#include <optional>
#include <string>

#include "chart/options.h"
#include "platform/data_files.h"

namespace tolvanis {

inline constexpr std::string_view kOptionsFileName = "OPTIONS.OPT";
inline constexpr std::string_view kOptionsMasterName = "OPTIONS.MAS";

// Reads line n's number, from its first 7 characters, into option n, up to the first empty line or the end of
// the file; options without a line keep their values, lines beyond the 196th are ignored. Gives the number of
// lines in front of that end. A fault names the file that cannot be read.
Result<int> ReadOptions(const DataFiles& files, Options& options);

// The same, with a fault also for a file of other content: one that reads as nothing but zeros, or in which
// most lines hold no number.
Result<int> LoadOptions(const DataFiles& files, Options& options);

// What the user should know of options of which so many lines were read: that the file ends early, or
// nothing.
std::string OptionsNote(const DataFiles& files, int lines);

struct RestoredOptions {
    std::optional<Path> keptAs;  // the file with the former options; none where there were none, or the same
};

// Puts the master copy, the delivered options, in the place of the options file, whose content is kept under
// BackupPath, or with the ending BAD where it holds no options.
Result<RestoredOptions> RestoreOptions(const DataFiles& files);

}  // namespace tolvanis
