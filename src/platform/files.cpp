#include "platform/files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <system_error>
#include <thread>

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
    // With NameUse::Alone the caller sees to it that nobody else writes beside this target; then what a
    // killed program has left there is used again and never piles up.
    enum class NameUse { Shared, Alone };

    NewFile(const Path& target, NameUse use) : target_(target) {
        const bool alone = use == NameUse::Alone;
        const std::string suffix = alone ? ".new" : ".XXXXXX";
        name_ = (target.parent_path() / ("." + target.filename().string() + suffix)).string();
        if (alone) {
            ::unlink(name_.c_str());
            descriptor_ = ::open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        } else {
            descriptor_ = ::mkostemp(name_.data(), O_CLOEXEC);
        }
        made_ = descriptor_ >= 0;
        if (!made_) error_ = errno;
    }
    ~NewFile() {
        if (descriptor_ >= 0) ::close(descriptor_);
        if (made_ && !placed_) ::unlink(name_.c_str());
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
    bool made_ = false;
    bool placed_ = false;
};

void FlushDirectory(const Path& directory) {
    const int descriptor = ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    ::fsync(descriptor);
    ::close(descriptor);
}

// Keeps other programs of this kind from replacing files in the directory. Where the file system has no
// locks, or another program holds one for too long, the work goes on without.
class DirectoryLock {
  public:
    explicit DirectoryLock(const Path& directory)
        : descriptor_(::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        constexpr auto kPause = std::chrono::milliseconds(5);
        constexpr int kAttempts = 1000;
        for (int attempt = 0; descriptor_ >= 0 && !held_ && attempt < kAttempts; ++attempt) {
            if (attempt > 0) std::this_thread::sleep_for(kPause);
            held_ = ::flock(descriptor_, LOCK_EX | LOCK_NB) == 0;
            if (!held_ && errno != EWOULDBLOCK && errno != EINTR) return;
        }
    }
    ~DirectoryLock() {
        if (descriptor_ >= 0) ::close(descriptor_);
    }
    DirectoryLock(const DirectoryLock&) = delete;
    DirectoryLock& operator=(const DirectoryLock&) = delete;

    bool held() const { return held_; }

  private:
    int descriptor_;
    bool held_ = false;
};

// The file that is really to be replaced: links followed, letter case as on the disk, an absolute directory.
Path RealTarget(const Path& path) {
    std::error_code error;
    const Path found = fs::absolute(FindPath(path), error);
    const Path real = fs::weakly_canonical(found, error);
    return error ? found : real;
}

bool FlushFile(const std::string& name) {
    const int descriptor = ::open(name.c_str(), O_RDONLY | O_CLOEXEC);
    const bool flushed = descriptor >= 0 && ::fsync(descriptor) == 0;
    if (descriptor >= 0) ::close(descriptor);
    return flushed;
}

// Gives the file a second name; file systems without hard links get a copy instead.
bool LinkOrCopy(const Path& target, const std::string& name) {
    if (::link(target.c_str(), name.c_str()) == 0) return true;
    std::error_code error;
    if (fs::copy_file(target, name, fs::copy_options::overwrite_existing, error)) return FlushFile(name);
    errno = error ? error.value() : EIO;
    return false;
}

// Puts the old content under the backup's name without a moment in which the file itself is missing.
bool MakeBackup(const Path& target, const Path& backup) {
    const std::string spare = backup.string() + "~";
    ::unlink(spare.c_str());
    const bool kept = LinkOrCopy(target, spare) && ::rename(spare.c_str(), backup.c_str()) == 0;
    const int error = errno;
    // What a fault has left must go, and so must a second name of one file, which rename leaves.
    ::unlink(spare.c_str());
    errno = error;
    return kept;
}

// Why the target cannot be replaced, or 0.
int WhyNotReplaceable(const Path& target) {
    std::error_code error;
    if (fs::is_directory(target, error)) return EISDIR;
    return fs::exists(target, error) && ::access(target.c_str(), W_OK) != 0 ? errno : 0;
}

using Writer = std::function<bool(const Sink&)>;

// Devices and pipes cannot be replaced, only written to.
Result<void> WriteInto(const Path& path, const Path& target, const Writer& write) {
    errno = 0;
    std::ofstream file(target, std::ios::binary);
    const auto sink = [&](std::string_view bytes) {
        return static_cast<bool>(file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())));
    };
    const bool written = file && write(sink);
    file.close();
    if (!written || !file) return CannotWrite(path, Reason(errno != 0 ? errno : EIO));
    return {};
}

// Writes the new content beside its target and flushes it to the disk.
Result<void> Prepare(NewFile& file, const Path& path, const Writer& write) {
    if (file.error() != 0) return CannotWrite(path, Reason(file.error()));
    const bool written = write([&](std::string_view bytes) { return file.Write(bytes); });
    if (written && file.Finish()) return {};
    return CannotWrite(path, file.error() != 0 ? Reason(file.error()) : "the content is incomplete");
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
    if (std::exchange(first_, false) && line.starts_with(kByteOrderMark))
        line.erase(0, kByteOrderMark.size());
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
    const std::uintmax_t size = fs::file_size(found, error);
    std::string bytes(error ? 0 : size, '\0');  // a first guess: a pipe has no size, a file may grow
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    if (file) bytes.append(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
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
    return ReplaceFile(path, [&](const Sink& sink) { return sink(content); });
}

Result<void> ReplaceFile(const Path& path, const Writer& write) {
    const Path target = RealTarget(path);
    if (const int refused = WhyNotReplaceable(target)) return CannotWrite(path, Reason(refused));
    std::error_code error;
    if (fs::exists(target, error) && !fs::is_regular_file(target, error)) {
        return WriteInto(path, target, write);
    }
    NewFile file(target, NewFile::NameUse::Shared);
    if (const Result<void> prepared = Prepare(file, path, write); !prepared) return prepared;
    if (!file.Place()) return CannotWrite(path, Reason(file.error()));
    FlushDirectory(target.parent_path());
    return {};
}

Result<bool> ReplaceIfUnchanged(const Path& path, const Path& backup, std::string_view expected,
                                std::string_view content) {
    const Path target = RealTarget(path);
    if (const int error = WhyNotReplaceable(target)) return CannotWrite(path, Reason(error));
    const DirectoryLock lock(target.parent_path());
    NewFile file(target, lock.held() ? NewFile::NameUse::Alone : NewFile::NameUse::Shared);
    const Result<void> prepared = Prepare(file, path, [&](const Sink& sink) { return sink(content); });
    if (!prepared) return prepared.fault();

    std::error_code error;
    const bool exists = fs::exists(target, error);
    if (exists) {
        const Result<std::string> present = ReadBytes(target);
        if (!present) return present.fault();
        if (*present != expected) return false;
        if (!MakeBackup(target, FindPath(backup))) return CannotWrite(backup, Reason(errno));
    } else if (!expected.empty()) {
        return false;
    }
    if (!file.Place()) return CannotWrite(path, Reason(file.error()));
    FlushDirectory(target.parent_path());
    return true;
}

std::string JoinLines(std::span<const std::string> lines) {
    std::string text;
    for (const std::string& line : lines) text.append(line).append("\r\n");
    return text;
}

}  // namespace tolvanis
