#include "app/editor_uses.h"

namespace tolvanis {

const EditorUseInfo& InfoOf(EditorUse use) {
    return kEditorUses[static_cast<std::size_t>(use)];
}

}  // namespace tolvanis
