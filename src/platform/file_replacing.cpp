#include "platform/file_replacing.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <system_error>
#include <thread>
#include <utility>

#include "text/columns.h"

namespace tolvanis {
namespace {

namespace fs = std::filesystem;
using Writer = std::function<bool(const Sink&)>;

// Names of fixed length, so that a file whose own name is as long as the file system allows is saved too.
constexpr std::string_view kTemporaryStart = ".tolvanis-save-";
constexpr std::string_view kTemporaryPattern = "XXXXXX";
constexpr int kAttempts = 100;

Fault CannotWrite(const Path& path, const std::string& reason) {
    return {"Cannot write the file " + path.string() + ": " + reason + "."};
}

// The directory that a file lies in, as the system wants it named.
Path DirectoryOf(const Path& file) {
    return file.has_parent_path() ? file.parent_path() : Path(".");
}

// A descriptor of the system's that is closed at the end.
class Descriptor {
  public:
    explicit Descriptor(int number = -1) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return number_; }
    bool IsOpen() const { return number_ >= 0; }
    void Take(int number) {
        if (number_ >= 0) ::close(number_);
        number_ = number;
    }

  private:
    int number_;
};

// Gathers what is written to a descriptor into large pieces.
class Output {
  public:
    explicit Output(const Descriptor& descriptor) : descriptor_(descriptor) {}

    bool Write(std::string_view bytes) {
        constexpr std::size_t kPieceSize = 1 << 16;
        buffer_ += bytes;
        return buffer_.size() < kPieceSize || Flush();
    }

    bool Flush() {
        std::string_view rest = buffer_;
        while (!rest.empty()) {
            const ssize_t written = ::write(descriptor_.number(), rest.data(), rest.size());
            if (written < 0 && errno == EINTR) continue;
            if (written < 0) {
                error_ = errno;
                return false;
            }
            rest.remove_prefix(static_cast<std::size_t>(written));
        }
        buffer_.clear();
        return true;
    }

    int error() const { return error_; }

  private:
    const Descriptor& descriptor_;
    std::string buffer_;
    int error_ = 0;
};

// A name for a temporary file in a directory; nothing has it.
std::string UnusedName(const Path& directory) {
    std::string name = (directory / kTemporaryStart).string().append(kTemporaryPattern);
    const Descriptor file(::mkostemp(name.data(), O_CLOEXEC));
    if (file.IsOpen()) ::unlink(name.c_str());
    return name;
}

// A file being written beside its target; the destructor removes it unless it has been moved into place. It
// is locked as long as its program lives: that tells it from one that a killed program has left.
class TemporaryFile {
  public:
    explicit TemporaryFile(const Path& directory) : output_(file_) {
        for (int attempt = 0; attempt < kAttempts && !made_; ++attempt) {
            name_ = (directory / kTemporaryStart).string().append(kTemporaryPattern);
            file_.Take(::mkostemp(name_.data(), O_CLOEXEC));
            if (!file_.IsOpen()) {
                error_ = errno;
                return;
            }
            ::flock(file_.number(), LOCK_EX | LOCK_NB);
            struct stat status {};
            // Another program may have taken it for a left one before it was locked.
            made_ = ::fstat(file_.number(), &status) == 0 && status.st_nlink > 0;
        }
    }
    ~TemporaryFile() {
        if (made_ && !placed_) ::unlink(name_.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    int error() const { return error_ != 0 ? error_ : output_.error(); }
    bool Write(std::string_view bytes) { return output_.Write(bytes); }

    // Writes what is left and flushes all to the disk; the file gets the mode of its target, and its owner
    // and group as far as they may be given.
    bool Finish(const Path& target) {
        if (!output_.Flush()) return false;
        struct stat status {};
        const bool exists = ::stat(target.c_str(), &status) == 0;
        const mode_t mode = exists ? ModeOwnedAs(status) : NewFileMode();
        if (::fchmod(file_.number(), mode) != 0) return Failed();
        return ::fsync(file_.number()) == 0 || Failed();
    }

    bool Place(const Path& target) {
        if (::rename(name_.c_str(), target.c_str()) != 0) return Failed();
        placed_ = true;
        return true;
    }

  private:
    // Where the group cannot be kept, another one gets no more than everyone has.
    mode_t ModeOwnedAs(const struct stat& status) const {
        const mode_t mode = status.st_mode & 07777;
        if (::fchown(file_.number(), status.st_uid, status.st_gid) == 0) return mode;
        if (::fchown(file_.number(), static_cast<uid_t>(-1), status.st_gid) == 0) return mode;
        return mode & ~(~(mode << 3) & static_cast<mode_t>(S_IRWXG));
    }

    static mode_t NewFileMode() {
        const mode_t mask = ::umask(0);
        ::umask(mask);
        return 0666 & ~mask;
    }

    bool Failed() {
        error_ = errno;
        return false;
    }

    std::string name_;
    Descriptor file_;
    Output output_;
    int error_ = 0;
    bool made_ = false;
    bool placed_ = false;
};

// Removes a temporary file of this user's that no living program holds.
void RemoveIfLeft(const Path& file) {
    const Descriptor left(::open(file.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    if (!left.IsOpen() || ::fstat(left.number(), &status) != 0) return;
    const bool own = S_ISREG(status.st_mode) && status.st_uid == ::geteuid();
    if (own && ::flock(left.number(), LOCK_EX | LOCK_NB) == 0) ::unlink(file.c_str());
}

void RemoveLeftFiles(const Path& directory) {
    std::error_code error;
    for (fs::directory_iterator entry(directory, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        const bool temporary = name.starts_with(kTemporaryStart) &&
                               name.size() == kTemporaryStart.size() + kTemporaryPattern.size();
        if (temporary) RemoveIfLeft(entry->path());
    }
}

void FlushDirectory(const Path& directory) {
    const Descriptor opened(::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.IsOpen()) ::fsync(opened.number());
}

// Tries every few milliseconds, for five seconds at most, whether something is still in the way.
template <typename Blocked>
bool StaysBlocked(Blocked blocked) {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::seconds(5);
    while (blocked()) {
        if (Clock::now() >= end) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return false;
}

// Keeps other programs of this kind from replacing files in the directory.
class DirectoryLock {
  public:
    explicit DirectoryLock(const Path& directory)
        : descriptor_(::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        late_ = descriptor_.IsOpen() && StaysBlocked([&] {
                    const bool locked = ::flock(descriptor_.number(), LOCK_EX | LOCK_NB) == 0;
                    return !locked && (errno == EWOULDBLOCK || errno == EINTR);
                });
    }

    // Whether another program holds the lock for too long. Where there are no locks the work goes on.
    bool IsLate() const { return late_; }

  private:
    Descriptor descriptor_;
    bool late_ = false;
};

// What a path stands for when it is written to.
struct Target {
    Path path;            // links followed, as far as they lead
    int descriptor = -1;  // of this program, where the path names one
    int error = 0;        // why it cannot be written
    fs::file_type type = fs::file_type::none;

    bool IsReplaced() const {
        return descriptor < 0 && (type == fs::file_type::regular || type == fs::file_type::not_found);
    }
};

// The number of this program's descriptor that a path in /proc or /dev names, or -1.
int OwnDescriptor(const Path& path) {
    const std::string name = path.filename().string();
    constexpr std::size_t kMostDigits = 9;
    if (name.empty() || name.size() > kMostDigits ||
        name.find_first_not_of("0123456789") != std::string::npos) {
        return -1;
    }
    std::error_code error;
    const Path directory = fs::canonical(DirectoryOf(path), error);
    const Path own = Path("/proc") / std::to_string(::getpid()) / "fd";
    return !error && directory == own ? std::stoi(name) : -1;
}

Target TargetOf(const Path& path) {
    constexpr int kMostLinks = 40;
    Target target;
    target.path = path;
    for (int links = 0; links < kMostLinks; ++links) {
        target.descriptor = OwnDescriptor(target.path);
        if (target.descriptor >= 0) return target;
        std::error_code error;
        target.type = fs::symlink_status(target.path, error).type();
        if (target.type == fs::file_type::none) target.error = error.value();
        if (target.type == fs::file_type::directory) target.error = EISDIR;
        if (target.type != fs::file_type::symlink) {
            const bool there = target.error == 0 && target.type != fs::file_type::not_found;
            if (there && ::access(target.path.c_str(), W_OK) != 0) target.error = errno;
            return target;
        }
        const Path to = fs::read_symlink(target.path, error);
        if (error) break;
        target.path = target.path.parent_path() / to;
    }
    target.error = ELOOP;
    return target;
}

// A pipe that nobody reads is waited for, but not for ever.
int OpenToWrite(const Target& target) {
    const bool isPipe = target.type == fs::file_type::fifo;
    int opened = -1;
    const bool unread = StaysBlocked([&] {
        opened = ::open(target.path.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
        return opened < 0 && errno == ENXIO && isPipe;
    });
    if (unread) errno = ENXIO;
    if (opened >= 0) ::fcntl(opened, F_SETFL, 0);
    return opened;
}

Result<void> WriteInto(const Path& path, const Target& target, const Writer& write) {
    const Descriptor file(target.descriptor >= 0 ? ::fcntl(target.descriptor, F_DUPFD_CLOEXEC, 0)
                                                 : OpenToWrite(target));
    if (!file.IsOpen()) {
        const bool unread = errno == ENXIO && target.type == fs::file_type::fifo;
        return CannotWrite(path, unread ? "nothing reads from this pipe" : SystemReason(errno));
    }
    Output output(file);
    const bool written = write([&](std::string_view bytes) { return output.Write(bytes); });
    if (written && output.Flush()) return {};
    return CannotWrite(path,
                       output.error() != 0 ? SystemReason(output.error()) : "the content is incomplete");
}

// Writes the new content beside its target and flushes it to the disk.
Result<void> Prepare(TemporaryFile& file, const Path& path, const Path& target, const Writer& write) {
    if (file.error() != 0) return CannotWrite(path, SystemReason(file.error()));
    const bool written = write([&](std::string_view bytes) { return file.Write(bytes); });
    if (written && file.Finish(target)) return {};
    return CannotWrite(path, file.error() != 0 ? SystemReason(file.error()) : "the content is incomplete");
}

// Where file systems have no hard links, the backup is a copy.
Result<void> CopyToBackup(const Path& backup, std::string_view content) {
    TemporaryFile copy(DirectoryOf(backup));
    const Result<void> prepared =
        Prepare(copy, backup, backup, [&](const Sink& sink) { return sink(content); });
    if (!prepared) return prepared;
    if (!copy.Place(backup)) return CannotWrite(backup, SystemReason(copy.error()));
    return {};
}

// Puts the present content under the backup's name without a moment in which the file itself is missing.
Result<void> MakeBackup(const Path& file, const Path& backup, std::string_view content) {
    const Target target = TargetOf(FindPath(backup));
    if (target.error != 0) return CannotWrite(backup, SystemReason(target.error));
    if (!target.IsReplaced()) return CannotWrite(backup, "it is no regular file");
    std::error_code error;
    const bool itself = target.path.filename() == file.filename() &&
                        fs::equivalent(DirectoryOf(target.path), DirectoryOf(file), error);
    if (itself) return CannotWrite(backup, "it is a link to the file itself");

    // In a directory where each user may only remove what is his own, a link to another's file would stay.
    struct stat status {};
    const bool own = ::stat(file.c_str(), &status) == 0 && status.st_uid == ::geteuid();
    const std::string spare = UnusedName(DirectoryOf(target.path));
    if (!own || ::link(file.c_str(), spare.c_str()) != 0) return CopyToBackup(target.path, content);
    const bool kept = ::rename(spare.c_str(), target.path.c_str()) == 0;
    const int failure = errno;
    ::unlink(spare.c_str());  // left by a fault, and by rename when both are names of one file
    if (!kept) return CannotWrite(backup, SystemReason(failure));
    return {};
}

}  // namespace

Result<void> ReplaceFile(const Path& path, std::string_view content) {
    return ReplaceFile(path, [&](const Sink& sink) { return sink(content); });
}

Result<void> ReplaceFile(const Path& path, const Writer& write) {
    const Target target = TargetOf(path);
    if (target.error != 0) return CannotWrite(path, SystemReason(target.error));
    if (!target.IsReplaced()) return WriteInto(path, target, write);
    const Path directory = DirectoryOf(target.path);
    RemoveLeftFiles(directory);
    TemporaryFile file(directory);
    if (const Result<void> prepared = Prepare(file, path, target.path, write); !prepared) return prepared;
    if (!file.Place(target.path)) return CannotWrite(path, SystemReason(file.error()));
    FlushDirectory(directory);
    return {};
}

Result<bool> ReplaceIfUnchanged(const Path& path, const Path& backup, std::string_view expected,
                                std::string_view content) {
    const Target target = TargetOf(FindPath(path));
    if (target.error != 0) return CannotWrite(path, SystemReason(target.error));
    if (!target.IsReplaced()) return CannotWrite(path, "it is no regular file");
    const Path directory = DirectoryOf(target.path);
    const DirectoryLock lock(directory);
    if (lock.IsLate()) {
        return CannotWrite(path, "another program is saving in that directory and does not come to an end");
    }
    RemoveLeftFiles(directory);
    TemporaryFile file(directory);
    const Result<void> prepared =
        Prepare(file, path, target.path, [&](const Sink& sink) { return sink(content); });
    if (!prepared) return prepared.fault();

    if (IsNameTaken(target.path)) {
        const Result<std::string> present = ReadBytes(target.path);
        if (!present) return present.fault();
        if (*present != expected) return false;
        if (const Result<void> kept = MakeBackup(target.path, backup, *present); !kept) return kept.fault();
    } else if (!expected.empty()) {
        return false;
    }
    if (!file.Place(target.path)) return CannotWrite(path, SystemReason(file.error()));
    FlushDirectory(directory);
    return true;
}

Result<bool> ReplaceAndKeep(const Path& path, const Path& backup, std::string_view content) {
    constexpr int kMostChanges = 20;
    for (int attempt = 0; attempt < kMostChanges; ++attempt) {
        std::error_code error;
        const bool exists = fs::exists(FindPath(path), error);
        const Result<std::string> present = exists ? ReadBytes(path) : std::string();
        if (!present) return present.fault();
        if (exists && *present == content) return false;
        const Result<bool> replaced = ReplaceIfUnchanged(path, backup, *present, content);
        if (!replaced) return replaced.fault();
        if (*replaced) return exists;
    }
    return CannotWrite(path, "another program keeps changing it");
}

Path BackupPath(const Path& file) {
    constexpr std::size_t kExtension = 3;
    const std::string name = file.filename().string();
    const std::string extension = file.extension().string();
    std::string kept;
    if (!extension.empty() && CharacterCount(extension) != kExtension + 1) {
        kept = file.stem().string() + ".";
    } else if (CharacterCount(name) > kExtension) {
        kept = FirstCharacters(name, CharacterCount(name) - kExtension);
    }
    if (kept.empty() || EqualIgnoringCase(kept + "OLD", name)) return file.string() + ".OLD";
    return file.parent_path() / (kept + "OLD");
}

}  // namespace tolvanis
