#include "platform/file_dialogs.h"

#include <algorithm>
#include <sstream>

#include "text/columns.h"

namespace tolvanis {
namespace {

constexpr std::size_t kLongestName = 255;  // bytes

bool EndsIn(std::string_view name, std::string_view extension) {
    return name.size() > extension.size() &&
           EqualIgnoringCase(name.substr(name.size() - extension.size()), extension);
}

// The extensions of a pattern: ".svg" and ".pdf" of "*.svg *.pdf".
std::vector<std::string> ExtensionsOf(const std::string& pattern) {
    std::vector<std::string> extensions;
    std::istringstream parts(pattern);
    for (std::string part; parts >> part;) extensions.push_back(Path(part).extension().string());
    return extensions;
}

bool IsInsideCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

}  // namespace

std::string NameWithExtension(const std::string& name, const SaveRequest& request) {
    std::vector<std::string> known = ExtensionsOf(request.pattern);
    known.insert(known.end(), request.foreign.begin(), request.foreign.end());
    if (std::ranges::any_of(known, [&](const std::string& extension) { return EndsIn(name, extension); })) {
        return name;
    }
    return name + (name.ends_with('.') ? "" : ".") + request.extension;
}

std::string FittingFileName(const std::string& name) {
    if (name.size() <= kLongestName) return name;
    std::string extension = Path(name).extension().string();
    if (extension.size() > kLongestName / 2) extension.clear();
    std::size_t length = kLongestName - extension.size();
    while (length > 0 && IsInsideCharacter(name[length])) --length;
    return name.substr(0, length) + extension;
}

std::optional<Path> ChooseOutput(FileDialogs& dialogs, Messages& messages, const SaveRequest& request) {
    SaveRequest fitting = request;
    fitting.proposedName = FittingFileName(request.proposedName);
    const std::string chosen = dialogs.ChooseSaveFile(fitting);
    if (chosen.empty()) return std::nullopt;
    const Path file(chosen);
    const std::optional<Path> other = OtherSpelling(file);
    if (!other) return file;
    const Answer answer = messages.AskYesNoCancel(
        "Warning!", "There is a file called " + other->filename().string() +
                        " already. Do you want to overwrite it?\r\n\r\nAnswering 'NO' will save as " +
                        file.filename().string() + " and leave the other file as it is.");
    if (answer == Answer::Cancel) return std::nullopt;
    return answer == Answer::Yes ? *other : file;
}

}  // namespace tolvanis
