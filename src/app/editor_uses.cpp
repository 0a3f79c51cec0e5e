#include "app/editor_uses.h"

#include "text/columns.h"

namespace tolvanis {

const EditorUseInfo& InfoOf(EditorUse use) {
    return kEditorUses[static_cast<std::size_t>(use)];
}

Result<std::string> EditorText(const Path& path) {
    std::error_code error;
    if (!std::filesystem::exists(FindPath(path), error)) return std::string();
    const Result<std::vector<std::string>> lines = ReadLines(path);
    if (!lines) return lines.fault();
    return JoinLines(*lines);
}

std::string EditedFile(std::string_view text) {
    if (CharacterCount(text) < 2) return {};
    std::string file(text);
    if (!text.ends_with("\r\n")) file += "\r\n";
    return file;
}

}  // namespace tolvanis
