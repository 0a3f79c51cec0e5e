#pragma once
// The text-file editors: one window, five uses.

#include <array>
#include <string_view>

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

}  // namespace tolvanis
