#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <system_error>

#include "text/columns.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

namespace fs = std::filesystem;

std::string Reason(int error) {
    return std::generic_category().message(error);
}

Fault CannotWrite(const Path& path, const std::string& reason) {
    return {"Cannot write the file " + path.string() + ": " + reason + "."};
}

Fault CannotRead(const Path& path, const std::string& reason) {
    return {"Cannot read the file " + path.string() + ": " + reason + "."};
}

Path FindEntryIgnoringCase(const Path& directory, const Path& name) {
    std::error_code error;
    Path found;
    for (fs::directory_iterator entry(directory, error), end; !error && entry != end;
         entry.increment(error)) {
        const Path candidate = entry->path().filename();
        // Of several spellings the first in order is taken, whatever order the system lists them in.
        const bool fits = EqualIgnoringCase(candidate.string(), name.string());
        if (fits && (found.empty() || candidate < found.filename())) found = entry->path();
    }
    return found;
}

// A file being written beside its target; the destructor removes it unless it has been moved into place.
class NewFile {
  public:
    explicit NewFile(const Path& target) : target_(target) {
        name_ = (target.parent_path() / ("." + target.filename().string() + ".XXXXXX")).string();
        descriptor_ = ::mkostemp(name_.data(), O_CLOEXEC);
        if (descriptor_ < 0) error_ = errno;
    }
    ~NewFile() {
        if (descriptor_ >= 0) ::close(descriptor_);
        if (!name_.empty() && !placed_) ::unlink(name_.c_str());
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    int error() const { return error_; }
    const std::string& name() const { return name_; }

    bool Write(std::string_view bytes) {
        buffer_ += bytes;
        return buffer_.size() < kBufferSize || Flush();
    }

    bool Finish() {
        if (!Flush()) return false;
        struct stat status {};
        const bool exists = ::stat(target_.c_str(), &status) == 0;
        if (::fchmod(descriptor_, exists ? status.st_mode & 07777 : NewFileMode()) != 0) return Failed();
        if (::fsync(descriptor_) != 0) return Failed();
        const int descriptor = descriptor_;
        descriptor_ = -1;
        return ::close(descriptor) == 0 || Failed();
    }

    bool Place() {
        if (::rename(name_.c_str(), target_.c_str()) != 0) return Failed();
        placed_ = true;
        return true;
    }

  private:
    static constexpr std::size_t kBufferSize = 1 << 16;

    static mode_t NewFileMode() {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        return 0666 & ~mask;
    }

    bool Failed() {
        error_ = errno;
        return false;
    }

    bool Flush() {
        std::string_view rest = buffer_;
        while (!rest.empty()) {
            const ssize_t written = ::write(descriptor_, rest.data(), rest.size());
            if (written < 0 && errno == EINTR) continue;
            if (written < 0) return Failed();
            rest.remove_prefix(static_cast<std::size_t>(written));
        }
        buffer_.clear();
        return true;
    }

    Path target_;
    std::string name_;
    std::string buffer_;
    int descriptor_ = -1;
    int error_ = 0;
    bool placed_ = false;
};

void FlushDirectory(const Path& directory) {
    const int descriptor = ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    ::fsync(descriptor);
    ::close(descriptor);
}

// The file that is really to be replaced: links followed, letter case as on the disk, an absolute directory.
Path RealTarget(const Path& path) {
    std::error_code error;
    const Path found = fs::absolute(FindPath(path), error);
    const Path real = fs::weakly_canonical(found, error);
    return error ? found : real;
}

// Puts the old content under the backup's name without a moment in which the file itself is missing.
bool MakeBackup(const Path& target, const Path& backup) {
    const std::string spare = backup.string() + "~";
    ::unlink(spare.c_str());
    if (::link(target.c_str(), spare.c_str()) != 0) {
        // File systems without hard links: a copy does as well.
        std::error_code error;
        if (!fs::copy_file(target, spare, fs::copy_options::overwrite_existing, error)) {
            errno = error ? error.value() : EIO;
            return false;
        }
    }
    if (::rename(spare.c_str(), backup.c_str()) == 0) {
        // Two names of one file are left as they are by rename; then the spare name must go.
        ::unlink(spare.c_str());
        return true;
    }
    const int error = errno;
    ::unlink(spare.c_str());
    errno = error;
    return false;
}

Result<void> Replace(const Path& path, const Path& backup, const std::function<bool(const Sink&)>& write) {
    const Path target = RealTarget(path);
    std::error_code error;
    if (fs::is_directory(target, error)) return CannotWrite(path, Reason(EISDIR));
    const bool exists = fs::exists(target, error);
    if (exists && ::access(target.c_str(), W_OK) != 0) return CannotWrite(path, Reason(errno));

    NewFile file(target);
    if (file.error() != 0) return CannotWrite(path, Reason(file.error()));
    const bool written = write([&](std::string_view bytes) { return file.Write(bytes); });
    if (!written || !file.Finish()) {
        return CannotWrite(path, file.error() != 0 ? Reason(file.error()) : "the content is incomplete");
    }
    if (exists && !backup.empty() && !MakeBackup(target, backup)) {
        return CannotWrite(backup, Reason(errno));
    }
    if (!file.Place()) return CannotWrite(path, Reason(file.error()));
    FlushDirectory(target.parent_path());
    return {};
}

}  // namespace

Path PathFromText(std::string_view text) {
    std::string native(text);
    std::replace(native.begin(), native.end(), '\\', '/');
    return Path(native);
}

Path FindPath(const Path& path) {
    const Path native = PathFromText(path.string());
    std::error_code error;
    if (fs::exists(native, error)) return native;
    Path found;
    for (const Path& part : native) {
        const Path exact = found / part;
        if (fs::exists(exact, error)) {
            found = exact;
            continue;
        }
        const Path other = FindEntryIgnoringCase(found.empty() ? Path(".") : found, part);
        if (other.empty()) return native;
        found = found.empty() ? other.filename() : other;
    }
    return found;
}

Path FindFile(const Path& directory, std::string_view name) {
    return FindPath(directory / PathFromText(name).relative_path());
}

std::string_view FileNamePart(std::string_view path) {
    return path.substr(path.find_last_of("/\\") + 1);
}

bool IsReadableFile(const Path& path) {
    std::error_code error;
    const Path found = FindPath(path);
    return fs::is_regular_file(found, error) && ::access(found.c_str(), R_OK) == 0;
}

LineReader::LineReader(const Path& path) {
    const Path found = FindPath(path);
    std::error_code error;
    if (fs::is_directory(found, error)) {
        fault_ = Reason(EISDIR);
        return;
    }
    errno = 0;
    file_.open(found, std::ios::binary);
    if (!file_) fault_ = Reason(errno != 0 ? errno : EIO);
}

bool LineReader::Next(std::string& line) {
    if (!IsOpen() || !std::getline(file_, line)) {
        if (IsOpen() && file_.bad()) fault_ = Reason(EIO);
        return false;
    }
    ++lineNumber_;
    if (line.ends_with('\r')) line.pop_back();
    const bool ascii = std::all_of(line.begin(), line.end(), [](char c) { return c >= 0; });
    if (!ascii) line = ToUtf8(line);
    if (std::exchange(first_, false) && line.starts_with("\xEF\xBB\xBF")) line.erase(0, 3);
    return true;
}

Result<std::vector<std::string>> ReadLines(const Path& path) {
    LineReader reader(path);
    std::vector<std::string> lines;
    for (std::string line; reader.Next(line);) lines.push_back(line);
    if (!reader.IsOpen()) return CannotRead(path, reader.Problem());
    return lines;
}

Result<std::string> ReadBytes(const Path& path) {
    const Path found = FindPath(path);
    std::error_code error;
    if (fs::is_directory(found, error)) return CannotRead(path, Reason(EISDIR));
    errno = 0;
    std::ifstream file(found, std::ios::binary);
    if (!file) return CannotRead(path, Reason(errno != 0 ? errno : EIO));
    std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    if (file.bad()) return CannotRead(path, Reason(EIO));
    return bytes;
}

Result<int> ReadNumberLines(const Path& path, std::span<float> values) {
    LineReader reader(path);
    int count = 0;
    for (std::string line; reader.Next(line) && !line.empty();) {
        ++count;
        const auto index = static_cast<std::size_t>(count);
        if (index < values.size()) {
            values[index] = static_cast<float>(LeadingNumber(FirstCharacters(line, 7)));
        }
    }
    if (!reader.IsOpen()) return CannotRead(path, reader.Problem());
    return count;
}

Result<void> ReplaceFile(const Path& path, std::string_view content) {
    return Replace(path, {}, [&](const Sink& sink) { return sink(content); });
}

Result<void> ReplaceFile(const Path& path, const std::function<bool(const Sink&)>& write) {
    return Replace(path, {}, write);
}

Result<void> ReplaceFileKeepingBackup(const Path& path, const Path& backup,
                                      const std::function<bool(const Sink&)>& write) {
    return Replace(path, backup, write);
}

std::string JoinLines(std::span<const std::string> lines) {
    std::string text;
    for (const std::string& line : lines) text.append(line).append("\r\n");
    return text;
}

}  // namespace tolvanis
