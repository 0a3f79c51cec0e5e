#pragma once
// The questions for files as dialogs.

#include "platform/file_dialogs.h"

namespace tolvanis {

class DesktopFileDialogs : public FileDialogs {
  public:
    // The chooser starts at the application directory where there is no current file.
    explicit DesktopFileDialogs(const Path& applicationDirectory) : directory_(applicationDirectory) {}

    std::string ChooseFile(const std::string& pattern, const std::string& currentPath) override;
    std::string ChooseFileToAddTo(const std::string& pattern, const std::string& currentPath) override;
    std::string ChooseSaveFile(const SaveRequest& request) override;

  private:
    Path directory_;
};

}  // namespace tolvanis
