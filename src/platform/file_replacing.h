#pragma once
// Files of the user's, replaced whole or not at all.

#include <functional>
#include <string_view>

#include "platform/files.h"

namespace tolvanis {

// Receives pieces of a file's new content; false when a piece could not be written.
using Sink = std::function<bool(std::string_view)>;

// Replaces the file at `path` (or makes it): the content is written to a new file beside it, flushed to the
// disk and renamed into place, so that at any moment the old or the new content is there in full. Symbolic
// links are followed, also one that points nowhere yet, mode, owner and group of an existing file are kept as
// far as they may be, and a read-only file is refused. What is no regular file (a device, a pipe, a
// descriptor such as /dev/stdout) is written to, never replaced. On a fault the old file is untouched and the
// message names the file and the reason. What killed programs of this user have left beside the file goes.
Result<void> ReplaceFile(const Path& path, std::string_view content);
Result<void> ReplaceFile(const Path& path, const std::function<bool(const Sink&)>& write);

// Replaces the file, found as FindPath does, only while its content is still `expected` (a file that does not
// exist counts as empty), and keeps that content under the name `backup`; an earlier backup is replaced.
// False, with nothing touched, when another program has changed the file meanwhile. Two programs that call
// this for files of one directory take turns; a fault says so when the other one does not come to an end. At
// any moment the file holds the old or the new content in full and is never missing; the backup holds the
// content that was there before, or for an instant the present one.
Result<bool> ReplaceIfUnchanged(const Path& path, const Path& backup, std::string_view expected,
                                std::string_view content);

// Replaces the file and keeps its content, whatever it is, as ReplaceIfUnchanged does. False when there was
// nothing to keep: no file yet, or one that holds the new content already.
Result<bool> ReplaceAndKeep(const Path& path, const Path& backup, std::string_view content);

// The name under which a file's previous content is kept: with its extension, or its last three characters
// where it has none, replaced by "OLD". Where that would be the file itself, or a name of three characters
// and less, ".OLD" is appended.
Path BackupPath(const Path& file);

}  // namespace tolvanis
