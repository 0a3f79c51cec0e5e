#pragma once
// A text file that is open in an editor. Another window or program may save it meanwhile, and then nothing of
// that is lost.

#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace tolvanis {

class EditorFile {
  public:
    explicit EditorFile(const Path& file) : file_(file) {}

    const Path& path() const { return file_; }

    // The file's lines, each ending in CR LF, as they are now. A missing file is an empty text; one that is
    // there and cannot be read gives a fault.
    Result<std::string> Read();

    // Whether the file's content is another one than at the last Read, also where that gave a fault.
    bool HasChanged() const;

    // Whether the file was there at the last Read or Save and is no more.
    bool IsGone() const;

    // Writes the edited text (EditedFile) and keeps the former content under BackupPath. False, with nothing
    // written, when the file's content is another one than was read; a file that is gone is written anew. One
    // that could not be read is never written.
    Result<bool> Save(std::string_view text);

    // What the file has gained and lost since it was read, in words; from then on its present content is what
    // Save expects.
    Result<std::string> TakeChanges();

  private:
    bool IsThere() const;
    Result<std::string> Present() const;
    void Know(std::string content);

    Path file_;
    bool wasThere_ = false;
    std::optional<std::size_t> seen_;   // the hash of the content that was found
    std::optional<std::string> known_;  // the content that was read
};

// What Save writes for a text with CR LF line ends: the text with a line end at its end. A text of fewer than
// 2 characters leaves the file empty.
std::string EditedFile(std::string_view text);

// The lines that `now` has and `before` had not, and the other way round, a few of each.
std::string ChangesBetween(std::string_view before, std::string_view now);

}  // namespace tolvanis
