#pragma once
// The text-file editors: one window, five uses.

#include <array>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace tolvanis {

enum class EditorUse { Options, NameEdit, LongLat, P_Name, OrbsEdit };

struct EditorUseInfo {
    EditorUse use;
    std::string_view window;    // the window's name
    std::string_view title;     // its caption; empty for "Edit: " and the full path of the file
    bool showsClipboardHint;    // the label on copying, cutting and pasting
    bool restoresDefaults;      // has the button that restores the delivered file
    bool asksOnUnsavedChanges;  // before it is closed
};

inline constexpr std::array<EditorUseInfo, 5> kEditorUses = {{
    {EditorUse::Options, "Options", "Edit: OPTIONS.OPT", false, true, true},
    {EditorUse::NameEdit, "NameEdit", "", true, false, true},
    {EditorUse::LongLat, "LongLat", "", true, false, true},
    {EditorUse::P_Name, "P_Name", "Edit: PERSONAL.NAM", false, false, true},
    {EditorUse::OrbsEdit, "OrbsEdit", "", false, false, false},
}};

const EditorUseInfo& InfoOf(EditorUse use);

inline constexpr std::string_view kClipboardHint = "Ctrl-C to copy. Ctrl-X to cut. Ctrl-V to paste.";

// A file's lines, each ending in CR LF. A missing file is an empty text; one that is there and cannot be read
// gives a fault.
Result<std::string> EditorText(const Path& path);

// What Save writes for a text with CR LF line ends: the text with a line end at its end. A text of fewer than
// 2 characters leaves the file empty.
std::string EditedFile(std::string_view text);

}  // namespace tolvanis
