#include "output/text_files.h"

#include <algorithm>

#include "text/columns.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kFormFeedLine = "\f\r\n";
constexpr std::size_t kLongestStem = 8;

}  // namespace

std::string SavedListing(std::span<const std::string> lines, double linesPerPage) {
    const int pageStep = linesPerPage < 2.0 ? 0 : RoundToInt16(linesPerPage - 1.0);
    std::string text;
    for (std::size_t i = 0; i <= lines.size(); ++i) {
        if (i < lines.size()) text += lines[i];
        text += kLineEnd;
        if (i != 0 && pageStep > 0 && i % static_cast<std::size_t>(pageStep) == 0) text += kFormFeedLine;
    }
    return text.append(kFormFeedLine);
}

std::string PrintFileText(std::span<const std::string> lines) {
    return JoinLines(lines).append(kLineEnd);
}

std::string FileNameText(std::string text) {
    const auto isSign = [](char c) {
        return std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos;
    };
    std::ranges::replace_if(text, isSign, '_');
    return text;
}

std::string ProposedFileName(std::string_view personName, std::string_view extension) {
    const std::string_view firstWord = personName.substr(0, personName.find(' '));
    std::string stem = FileNameText(std::string(FirstCharacters(firstWord, kLongestStem)));
    if (stem.empty()) stem = "CHART";
    return stem.append(extension);
}

Result<int> ListTextFile(DataBuffer& buffer, const Path& path, TextUse use) {
    const Result<std::vector<std::string>> lines = ReadLines(path);
    if (use == TextUse::Lesson) {
        buffer.ClearDataBuffer();
        buffer.AppendBlankLine();
    }
    if (!lines) return lines.fault();
    if (use == TextUse::Reading && !lines->empty()) buffer.StartListing();
    const std::string_view indent = use == TextUse::Lesson ? kListingIndent : "";
    for (const std::string& line : *lines) buffer.AppendLine(std::string(indent).append(line));
    if (use == TextUse::Reading && !lines->empty()) buffer.AppendBlankLine();
    return static_cast<int>(lines->size());
}

std::vector<std::string> ReadPersonalBlock(const Path& file) {
    const Result<std::vector<std::string>> lines = ReadLines(file);
    return lines ? *lines : std::vector<std::string>{};
}

std::string UnreadTextMessage(const Path& path, const Fault& fault) {
    std::error_code error;
    const bool isMissing =
        std::filesystem::status(path, error).type() == std::filesystem::file_type::not_found;
    return isMissing ? "Cannot find the file called " + path.string() + "." : fault.message;
}

}  // namespace tolvanis
