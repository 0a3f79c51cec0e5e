#pragma once
// The window in which a text file is edited in place.

#include <QWidget>

#include "app/editor_uses.h"
#include "platform/messages.h"

class QPlainTextEdit;
class QPushButton;

namespace tolvanis {

class EditorWindow : public QWidget {
    Q_OBJECT

  public:
    // Opens with the file's text. Deletes itself when closed.
    EditorWindow(EditorUse use, const Path& file, Messages& messages);

    EditorUse use() const { return info_.use; }
    const Path& file() const { return file_; }

    // Asks what to do with unsaved changes, where this use asks. Returns whether the window may close.
    bool MayClose();

  Q_SIGNALS:
    void saved();
    void restoreRequested();  // the receiver restores the file and calls Load
    void closed();

  public Q_SLOTS:
    void Load();
    bool btnSave_Click();
    void btnQuit_Click();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void Build();

    const EditorUseInfo& info_;
    Path file_;
    Messages& messages_;
    QPlainTextEdit* txtContent_;
};

}  // namespace tolvanis
