#include "app/editor_file.h"

#include <algorithm>
#include <functional>
#include <vector>

#include "platform/file_replacing.h"
#include "text/columns.h"

namespace tolvanis {
namespace {

std::vector<std::string> SortedLines(std::string_view content) {
    std::vector<std::string> lines;
    LineReader reader = LineReader::OfText(content);
    for (std::string line; reader.Next(line);) lines.push_back(line);
    std::ranges::sort(lines);
    return lines;
}

std::string LinesOnlyIn(const std::vector<std::string>& lines, const std::vector<std::string>& others,
                        std::string_view heading) {
    constexpr std::size_t kMostShown = 5;
    constexpr std::size_t kLongestShown = 72;
    std::vector<std::string> only;
    std::ranges::set_difference(lines, others, std::back_inserter(only));
    if (only.empty()) return {};
    std::string text(heading);
    for (std::size_t i = 0; i < std::min(only.size(), kMostShown); ++i) {
        text.append("\r\n    ").append(FirstCharacters(Printable(only[i]), kLongestShown));
    }
    if (only.size() > kMostShown) {
        text += "\r\n    and " + std::to_string(only.size() - kMostShown) + " more";
    }
    return text + "\r\n";
}

std::size_t HashOf(std::string_view content) {
    return std::hash<std::string_view>()(content);
}

}  // namespace

bool EditorFile::IsThere() const {
    std::error_code error;
    return std::filesystem::exists(FindPath(file_), error) || error;
}

Result<std::string> EditorFile::Present() const {
    return IsThere() ? ReadBytes(file_) : Result<std::string>(std::string());
}

Result<std::string> EditorFile::Read() {
    known_.reset();
    wasThere_ = IsThere();
    Result<std::string> present = Present();
    if (!present) return present.fault();
    seen_ = HashOf(*present);
    LineReader reader = LineReader::OfText(*present);
    std::string text;
    for (std::string line; reader.Next(line);) text.append(line).append("\r\n");
    if (reader.HasFault()) {
        return CannotRead(file_, reader.fault());
    }
    known_ = std::move(*present);
    return text;
}

bool EditorFile::HasChanged() const {
    const Result<std::string> present = Present();
    return present && seen_ != HashOf(*present);
}

bool EditorFile::IsGone() const {
    return wasThere_ && !IsThere();
}

Result<bool> EditorFile::Save(std::string_view text) {
    if (!known_) return Fault{"The file " + file_.string() + " could not be read and is left as it is."};
    std::string content = EditedFile(text);
    if (IsGone()) known_->clear();
    const bool same = content == *known_ && IsNameTaken(FindPath(file_)) && !HasChanged();
    if (same) return true;
    Result<bool> saved = ReplaceIfUnchanged(file_, BackupPath(FindPath(file_)), *known_, content);
    if (saved && *saved) Know(std::move(content));
    return saved;
}

Result<std::string> EditorFile::TakeChanges() {
    Result<std::string> present = Present();
    if (!present) return present.fault();
    std::string changes = ChangesBetween(known_.value_or(std::string()), *present);
    Know(std::move(*present));
    return changes;
}

void EditorFile::Know(std::string content) {
    wasThere_ = IsThere();
    seen_ = HashOf(content);
    known_ = std::move(content);
}

std::string EditedFile(std::string_view text) {
    if (CharacterCount(text) < 2) return {};
    std::string file(text);
    if (!text.ends_with("\r\n")) file += "\r\n";
    return file;
}

std::string ChangesBetween(std::string_view before, std::string_view now) {
    const std::vector<std::string> had = SortedLines(before), has = SortedLines(now);
    const std::string changes =
        LinesOnlyIn(has, had, "New since then:") + LinesOnlyIn(had, has, "Gone since then:");
    return changes.empty() ? "The order of its lines has changed.\r\n" : changes;
}

}  // namespace tolvanis
