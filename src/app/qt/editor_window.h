#pragma once
// The window in which a text file is edited in place.

#include <QWidget>

#include "app/editor_file.h"
#include "app/editor_uses.h"
#include "platform/messages.h"

class QPlainTextEdit;

namespace tolvanis {

class EditorWindow : public QWidget {
    Q_OBJECT

  public:
    // Opens with the file's text. Deletes itself when closed.
    EditorWindow(EditorUse use, const Path& file, Messages& messages);

    const Path& file() const { return file_.path(); }
    bool HasUnsavedChanges() const;

    // Asks what to do with unsaved changes, where this use asks. Returns whether the window may close.
    bool MayClose();

  Q_SIGNALS:
    void saved();
    void restoreRequested();  // the receiver restores the file and calls Load
    void closed();

  public Q_SLOTS:
    void Load();
    // Loads the file again when it has changed and the text has not.
    void Refresh();
    bool btnSave_Click();
    void btnQuit_Click();

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void Build();
    void KeepText();
    bool Overwrites();

    const EditorUseInfo& info_;
    EditorFile file_;
    Messages& messages_;
    QPlainTextEdit* txtContent_;
};

}  // namespace tolvanis
