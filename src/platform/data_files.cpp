#include "platform/data_files.h"

#include <algorithm>
#include <utility>

#include "platform/former_data.h"
#include "text/columns.h"

namespace tolvanis {
namespace {

// FNV-1a, 64 bits.
std::uint64_t Fingerprint(std::string_view bytes) {
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3U;
    return hash;
}

// Whether the file is, byte for byte, what an earlier version delivered under its name.
bool IsFormerCopy(const Path& file) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(file, error);
    if (error) return false;
    const std::string name = UpperCase(file.filename().string());
    const auto fits = [&](const FormerFile& former) { return former.name == name && former.size == size; };
    if (std::ranges::none_of(kFormerFiles, fits)) return false;
    const Result<std::string> content = ReadBytes(file);
    return content && std::ranges::any_of(kFormerFiles, [&](const FormerFile& former) {
               return fits(former) && former.fingerprint == Fingerprint(*content);
           });
}

}  // namespace

DataFiles::DataFiles(Path directory, Path delivered, Directory kind)
    : directory_(std::move(directory)), delivered_(std::move(delivered)), kind_(kind) {}

Path DataFiles::Own(std::string_view name) const {
    return FindFile(directory_, name);
}

Path DataFiles::Find(std::string_view name) const {
    Path own = Own(name);
    if (delivered_.empty() || delivered_ == directory_) return own;
    Path delivered = FindFile(delivered_, name);
    std::error_code error;
    if (!std::filesystem::exists(delivered, error)) return own;
    return std::filesystem::exists(own, error) && !IsFormerCopy(own) ? own : delivered;
}

Path DataFiles::FindText(std::string_view name) const {
    return kind_ == Directory::Named ? Own(name) : Find(name);
}

}  // namespace tolvanis
