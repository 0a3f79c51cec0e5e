#pragma once
// What a directory holds, for lists to choose from.

#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace tolvanis {

// Names of the regular files that fit the pattern, sorted without regard to case. In a pattern "*" stands for
// any characters and "?" for one; letter case does not matter; several patterns are separated by ";". A
// directory that cannot be read has no files.
std::vector<std::string> FilesIn(const Path& directory, std::string_view pattern);

// Names of the directories inside a directory, sorted; hidden ones (".name") are left out.
std::vector<std::string> DirectoriesIn(const Path& directory);

bool FitsPattern(std::string_view name, std::string_view pattern);

// The file's full path as a text: directory, separator where it does not end in one, and name. The
// separator is the host's, or "\\" behind a directory that is written with it alone.
std::string JoinPathText(std::string_view directory, std::string_view name);

// The place of the file in `names` whose name ends the path, in the same letter case or else in another; 0
// when none does.
std::size_t IndexOfPathEnd(const std::vector<std::string>& names, std::string_view path);

}  // namespace tolvanis
