#include "output/text_saving.h"

#include "platform/file_replacing.h"

namespace tolvanis {
namespace {

// Without the form feed behind the last page, which moves when a text grows.
std::string_view WithoutLastBreak(std::string_view text) {
    constexpr std::string_view kBreak = "\f\r\n";
    if (text.ends_with(kBreak)) text.remove_suffix(kBreak.size());
    return text;
}

}  // namespace

void TextSaving::Save(const TextToSave& text) {
    if (SaveFileName_.empty()) return SaveAs(text);
    if (!HasText(text)) return;
    const std::string content = text.content();
    const Answer overwrites = MayOverwrite(content);
    if (overwrites == Answer::No) return SaveAs(text);
    if (overwrites == Answer::Yes) Write(content);
}

void TextSaving::SaveAs(const TextToSave& text) {
    if (!HasText(text)) return;
    const std::optional<Path> path = ChooseOutput(dialogs_, messages_, text.request());
    if (!path) return;
    SaveFileName_ = path->string();
    Write(text.content());
}

bool TextSaving::HasText(const TextToSave& text) {
    if (text.empty) messages_.Tell("Information", "No data to write to file.", MessageIcon::Warning);
    return !text.empty;
}

Answer TextSaving::MayOverwrite(std::string_view content) {
    const Path file = SaveFileName_;
    const Result<std::string> present = IsReadableFile(file) ? ReadBytes(file) : std::string();
    if (present && content.starts_with(WithoutLastBreak(*present))) return Answer::Yes;
    return messages_.AskYesNoCancel(
        "Warning!",
        "The file " + file.filename().string() +
            " holds another text. Do you want to overwrite it?\r\n\r\nAnswering 'NO' will ask for "
            "another name.");
}

void TextSaving::Write(const std::string& content) {
    const Result<void> written = ReplaceFile(SaveFileName_, content);
    if (written) return;
    messages_.Tell("Error!", written.message(), MessageIcon::Stop);
    SaveFileName_.clear();
}

}  // namespace tolvanis
