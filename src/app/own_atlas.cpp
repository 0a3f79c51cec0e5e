#include "app/own_atlas.h"

namespace tolvanis {
namespace {

namespace fs = std::filesystem;

// A link to the program; a copy where the file system knows no links.
Result<void> LinkProgram(const Path& program, const Path& link) {
    std::error_code error;
    if (fs::read_symlink(link, error) == program) return {};
    const bool isUsers = !fs::is_symlink(link, error) && fs::exists(link, error);
    if (isUsers && fs::file_size(link, error) == fs::file_size(program, error)) return {};
    fs::remove(link, error);
    fs::create_symlink(program, link, error);
    if (error) fs::copy_file(program, link, error);
    if (error) return Fault{"Cannot make the file " + link.string() + ": " + error.message() + "."};
    return {};
}

}  // namespace

Result<std::string> PrepareOwnAtlas(const Path& appDirectory, const Path& programDirectory) {
    const Path program = programDirectory / kOwnAtlasProgram;
    std::error_code error;
    if (!fs::exists(program, error)) return Fault{"There is no program " + program.string() + "."};
    const Path directory = FindFile(appDirectory, kOwnAtlasDirectory);
    fs::create_directories(directory, error);
    if (error) return Fault{"Cannot make the directory " + directory.string() + ": " + error.message() + "."};
    if (const auto linked = LinkProgram(program, directory / kAtlasProgram); !linked) return linked.fault();
    const std::string name = directory.string() + "/";
    const Path pathFile = directory / kAtlasPathFile;
    const std::string content = name + "\r\n";
    if (const auto written = ReadBytes(pathFile); written && *written == content) return name;
    if (const auto written = ReplaceFile(pathFile, content); !written) return written.fault();
    return name;
}

std::string AtlasDirectoryOf(const std::string& settings, const std::string& own) {
    if (own.empty()) return settings;
    std::error_code error;
    const bool known = !settings.empty() && fs::is_directory(FindPath(PathFromText(settings)), error);
    return known ? settings : own;
}

}  // namespace tolvanis
