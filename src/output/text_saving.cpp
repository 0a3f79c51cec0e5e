#include "output/text_saving.h"

#include "platform/file_replacing.h"

namespace tolvanis {

void TextSaving::Save(const TextToSave& text) {
    if (SaveFileName_.empty()) return SaveAs(text);
    if (HasText(text)) Write(text);
}

void TextSaving::SaveAs(const TextToSave& text) {
    if (!HasText(text)) return;
    const std::optional<Path> path = ChooseOutput(dialogs_, messages_, text.request());
    if (!path) return;
    SaveFileName_ = path->string();
    Write(text);
}

bool TextSaving::HasText(const TextToSave& text) {
    if (text.empty) messages_.Tell("Information", "No data to write to file.", MessageIcon::Warning);
    return !text.empty;
}

void TextSaving::Write(const TextToSave& text) {
    const Result<void> written = ReplaceFile(SaveFileName_, text.content());
    if (!written) messages_.Tell("Error!", written.message(), MessageIcon::Stop);
}

}  // namespace tolvanis
