#pragma once
// Where the program finds its data.

#include <string_view>

#include "platform/files.h"

namespace tolvanis {

// The environment variable that names the application directory.
inline constexpr const char* kDirectoryVariable = "TOLVANIS_DIR";

// The application directory, with the data delivered with the program behind it. Made once at start; whoever
// needs a file asks here.
class DataFiles {
  public:
    enum class Directory {
        OfUser,  // the user's data directory: what is not there is taken from the delivered data
        Named,   // one that was named or lies with a portable copy: its texts are all the texts there are
    };

    DataFiles() = default;
    // `delivered` may be empty.
    explicit DataFiles(Path directory, Path delivered = {}, Directory kind = Directory::Named);

    const Path& directory() const { return directory_; }

    // A file of the user's in the application directory, whether it exists or not.
    Path Own(std::string_view name) const;

    // A table that the program works with: the application directory's, else the delivered one. A copy that
    // only repeats what an earlier version delivered gives way to the present one.
    Path Find(std::string_view name) const;

    // The same for a text to be read; a named directory stands for itself.
    Path FindText(std::string_view name) const;

  private:
    Path directory_;
    Path delivered_;
    Directory kind_ = Directory::Named;
};

}  // namespace tolvanis
