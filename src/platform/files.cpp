#include "platform/files.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include "text/columns.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kPieceSize = std::size_t{1} << 16;
constexpr int kMostNumberLines = 100000;
constexpr double kLargestNumber = 9999999.0;  // seven digits
constexpr char kDosEndMark = '\x1A';

std::string TooLarge(std::string_view what, std::size_t limit) {
    return std::string(what) + " has more than " + std::to_string(limit) + " bytes";
}

constexpr int kPatience = 2000;  // milliseconds for the first byte of a pipe
constexpr int kForEver = -1;

// Waits until there is something to read, or its end.
bool HasInput(int descriptor, int patience) {
    pollfd waiting{descriptor, POLLIN, 0};
    return ::poll(&waiting, 1, patience) > 0;
}

// Calls `take` with every entry of a directory; one that cannot be read has none.
template <typename Take>
void ForEachEntry(const Path& directory, Take take) {
    std::error_code error;
    for (fs::directory_iterator entry(directory.empty() ? Path(".") : directory, error), end;
         !error && entry != end; entry.increment(error)) {
        take(entry->path());
    }
}

Path FindEntryIgnoringCase(const Path& directory, const Path& name) {
    Path found;
    bool foundExists = false;
    ForEachEntry(directory, [&](const Path& entry) {
        if (!EqualIgnoringCase(entry.filename().string(), name.string())) return;
        // Of several spellings the first in order is taken, whatever order the system lists them in; a link
        // that points nowhere only when there is nothing else.
        std::error_code error;
        const bool exists = fs::exists(entry, error);
        const bool better = exists != foundExists ? exists : entry.filename() < found.filename();
        if (!found.empty() && !better) return;
        found = entry;
        foundExists = exists;
    });
    return found;
}

// The length of the first line with its end, or 0 where more bytes may belong to it.
std::size_t LineLength(std::string_view bytes) {
    const auto isEnd = [](char c) { return c == '\n' || c == '\r'; };
    const auto end =
        static_cast<std::size_t>(std::find_if(bytes.begin(), bytes.end(), isEnd) - bytes.begin());
    if (end == bytes.size()) return 0;
    if (bytes[end] == '\n') return end + 1;
    const std::size_t after = bytes.find_first_not_of('\r', end);
    if (after == std::string_view::npos) return 0;
    return bytes[after] == '\n' ? after + 1 : after;
}

std::string_view WithoutMarks(std::string_view text) {
    while (text.ends_with(kDosEndMark)) text.remove_suffix(1);
    while (true) {
        if (text.starts_with(kByteOrderMark)) {
            text.remove_prefix(kByteOrderMark.size());
        } else if (text.starts_with(kDosEndMark)) {
            text.remove_prefix(1);
        } else {
            return text;
        }
    }
}

bool IsAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

std::string SystemReason(int error) {
    return std::generic_category().message(error != 0 ? error : EIO);
}

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
        const Path other = FindEntryIgnoringCase(found, part);
        if (other.empty()) return native;
        found = found.empty() ? other.filename() : other;
    }
    return found;
}

Path FindFile(const Path& directory, std::string_view name) {
    return FindPath(directory / PathFromText(name).relative_path());
}

bool IsNameTaken(const Path& path) {
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

std::optional<Path> OtherSpelling(const Path& path) {
    if (IsNameTaken(path)) return std::nullopt;
    const Path other = FindEntryIgnoringCase(path.parent_path(), path.filename());
    return other.empty() ? std::nullopt : std::optional(other);
}

Path AbsolutePath(const Path& path) {
    std::error_code error;
    Path absolute = fs::absolute(path, error);
    return error ? path : absolute;
}

std::string_view FileNamePart(std::string_view path) {
    return path.substr(path.find_last_of("/\\") + 1);
}

bool IsReadableFile(const Path& path) {
    std::error_code error;
    const Path found = FindPath(path);
    return fs::is_regular_file(found, error) && ::access(found.c_str(), R_OK) == 0;
}

std::string_view TakeLine(std::string_view& bytes) {
    const std::size_t length = LineLength(bytes);
    const std::string_view line = bytes.substr(0, length == 0 ? bytes.size() : length);
    bytes.remove_prefix(line.size());
    return line;
}

std::string_view WithoutLineEnd(std::string_view line) {
    return line.substr(0, line.find_last_not_of("\r\n") + 1);
}

std::string LineText(std::string_view line) {
    const std::string_view text = WithoutMarks(WithoutLineEnd(line));
    return IsAscii(text) ? std::string(text) : ToUtf8(text);
}

// A pipe that nobody writes into would keep the opening waiting for ever.
ByteReader::ByteReader(const Path& path)
    : descriptor_(::open(FindPath(path).c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK)) {
    if (descriptor_ < 0) fault_ = SystemReason(errno);
}

ByteReader::~ByteReader() {
    if (descriptor_ >= 0) ::close(descriptor_);
}

std::string_view ByteReader::Next() {
    if (!fault_.empty()) return {};
    buffer_.resize(kPieceSize);
    while (fault_.empty()) {
        const ssize_t count = ::read(descriptor_, buffer_.data(), buffer_.size());
        if (count > 0 || (count == 0 && begun_)) return {buffer_.data(), static_cast<std::size_t>(count)};
        if (count == 0) {  // an empty file, or a pipe that nobody has opened to write
            if (!HasInput(descriptor_, kPatience)) fault_ = "nothing writes into this pipe";
        } else if (errno == EAGAIN) {
            HasInput(descriptor_, kForEver);
        } else if (errno != EINTR) {
            fault_ = SystemReason(errno);
        }
        begun_ = true;
    }
    return {};
}

LineReader::LineReader(const Path& path, std::size_t most)
    : file_(std::make_unique<ByteReader>(path)), left_(most), fault_(file_->fault()) {}

void LineReader::ReadMore() {
    buffer_.erase(0, buffer_.size() - rest_.size());
    const std::string_view piece = file_->Next();
    buffer_ += piece;
    rest_ = buffer_;
    fault_ = piece.size() > left_ ? TooLarge("it", kLargestFile) : file_->fault();
    left_ -= std::min(left_, piece.size());
    if (piece.empty()) file_.reset();
}

// An empty line without an end says that there is no more.
std::string_view LineReader::TakeRawLine() {
    while (!HasFault()) {
        const std::size_t length = LineLength(rest_);
        if ((length > 0 ? length : rest_.size()) > kLongestLine) {
            fault_ = TooLarge("line " + std::to_string(lineNumber_ + 1), kLongestLine);
            break;
        }
        if (length > 0 || file_ == nullptr) return TakeLine(rest_);
        ReadMore();
    }
    return {};
}

bool LineReader::Next(std::string& line) {
    while (true) {
        const std::string_view raw = TakeRawLine();
        if (raw.empty()) return false;
        ++lineNumber_;
        const std::string_view bare = WithoutLineEnd(raw);
        const std::string_view text = WithoutMarks(bare);
        if (text.empty() && !bare.empty()) continue;
        line.assign(text);
        if (!IsAscii(line)) line = ToUtf8(line);
        return true;
    }
}

Fault CannotRead(const Path& path, std::string_view reason) {
    return {"Cannot read the file " + path.string() + ": " + std::string(reason) + "."};
}

Result<std::vector<std::string>> ReadLines(const Path& path) {
    LineReader reader(path);
    std::vector<std::string> lines;
    for (std::string line; reader.Next(line);) lines.push_back(line);
    if (reader.HasFault()) return CannotRead(path, reader.fault());
    return lines;
}

Result<std::string> ReadBytes(const Path& path) {
    ByteReader reader(path);
    std::string bytes;
    for (std::string_view piece = reader.Next(); !piece.empty(); piece = reader.Next()) {
        if (bytes.size() + piece.size() > kLargestFile) {
            return CannotRead(path, TooLarge("it", kLargestFile));
        }
        bytes += piece;
    }
    if (!reader.fault().empty()) return CannotRead(path, reader.fault());
    return bytes;
}

Result<int> ReadNumberLines(const Path& path, std::span<float> values) {
    LineReader reader(path);
    int count = 0;
    for (std::string line; reader.Next(line) && !line.empty();) {
        if (++count == kMostNumberLines) break;
        const auto index = static_cast<std::size_t>(count);
        if (index < values.size()) {
            const double number = LeadingNumber(FirstCharacters(line, 7));
            values[index] = static_cast<float>(std::clamp(number, -kLargestNumber, kLargestNumber));
        }
    }
    if (reader.HasFault()) return CannotRead(path, reader.fault());
    return count;
}

std::string JoinLines(std::span<const std::string> lines) {
    std::string text;
    for (const std::string& line : lines) text.append(line).append("\r\n");
    return text;
}

}  // namespace tolvanis
