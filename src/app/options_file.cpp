#include "app/options_file.h"

#include <algorithm>

#include "platform/file_replacing.h"

namespace tolvanis {
namespace {

bool BeginsWithNumber(std::string_view line) {
    const std::size_t first = line.find_first_not_of(" \t+-.");
    return first != std::string_view::npos && line[first] >= '0' && line[first] <= '9';
}

// Whether most lines of the file hold no number.
bool IsForeign(const Path& path) {
    LineReader reader(path);
    int numbers = 0, others = 0;
    for (std::string line; reader.LineNumber() < kOptionCount && reader.Next(line) && !line.empty();) {
        ++(BeginsWithNumber(line) ? numbers : others);
    }
    return others > numbers;
}

}  // namespace

Result<int> ReadOptions(const DataFiles& files, Options& options) {
    return ReadNumberLines(files.Own(kOptionsFileName), options.table());
}

std::string OptionsNote(const DataFiles& files, int lines) {
    if (lines >= kOptionCount) return {};
    return files.Own(kOptionsFileName).string() + " ends after " + std::to_string(lines) + " of " +
           std::to_string(kOptionCount) + " lines; the options behind count as 0";
}

Result<RestoredOptions> RestoreOptions(const DataFiles& files) {
    const Result<std::string> content = ReadBytes(files.Find(kOptionsMasterName));
    if (!content) return content.fault();
    const Path file = files.Own(kOptionsFileName);
    Options present;
    // Options are kept; what holds none does not take the place of options that have been kept.
    const Path backup = LoadOptions(files, present) ? BackupPath(file) : Path(file).replace_extension("BAD");
    const Result<bool> kept = ReplaceAndKeep(file, backup, *content);
    if (!kept) return kept.fault();
    return *kept ? RestoredOptions{backup} : RestoredOptions{};
}

Result<int> LoadOptions(const DataFiles& files, Options& options) {
    const Result<int> read = ReadOptions(files, options);
    if (!read) return read.fault();
    const auto lines = options.table().subspan(1, static_cast<std::size_t>(std::min(*read, kOptionCount)));
    const bool any = std::ranges::any_of(lines, [](float value) { return value != 0.0F; });
    if (!any || IsForeign(files.Own(kOptionsFileName)))
        return Fault{"The file " + files.Own(kOptionsFileName).string() + " holds no options."};
    return read;
}

}  // namespace tolvanis
