#pragma once
// A directory that lives as long as the object.

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace tolvanis {

class TemporaryDirectory {
  public:
    TemporaryDirectory() {
        std::string name = (std::filesystem::temp_directory_path() / "tolvanis-XXXXXX").string();
        path_ = ::mkdtemp(name.data());
    }
    ~TemporaryDirectory() {
        std::error_code error;
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all, error);
        std::filesystem::remove_all(path_, error);
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    const std::filesystem::path& path() const { return path_; }

    void Write(const std::string& name, const std::string& bytes) const {
        std::ofstream(path_ / name, std::ios::binary) << bytes;
    }
    std::string Read(const std::string& name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    // Copies all files of another directory.
    void CopyFrom(const std::filesystem::path& source) const {
        std::filesystem::copy(source, path_, std::filesystem::copy_options::recursive);
    }

  private:
    std::filesystem::path path_;
};

}  // namespace tolvanis
