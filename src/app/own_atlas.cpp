#include "app/own_atlas.h"

#include "platform/file_replacing.h"

namespace tolvanis {
namespace {

namespace fs = std::filesystem;

// Whether a file is our program of any version: only that says so in its usage.
bool IsOurs(const Path& file) {
    std::error_code error;
    if (fs::is_symlink(file, error)) return fs::read_symlink(file, error).filename() == kOwnAtlasProgram;
    const Result<std::string> content = ReadBytes(file);
    return content && content->find("Usage: " + std::string(kOwnAtlasProgram)) != std::string::npos;
}

bool HaveSameContent(const Path& a, const Path& b) {
    const Result<std::string> one = ReadBytes(a), other = ReadBytes(b);
    return one && other && *one == *other;
}

// A link to the program; a copy where the file system knows no links.
Result<void> LinkProgram(const Path& program, const Path& link) {
    std::error_code error;
    if (IsNameTaken(link)) {
        if (!IsOurs(link)) return Fault{"The file " + link.string() + " is another program."};
        const bool isLink = fs::is_symlink(link, error);
        const bool isRight =
            isLink ? fs::read_symlink(link, error) == program : HaveSameContent(link, program);
        if (isRight) return {};
        fs::remove(link, error);
    }
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
