#pragma once
// The aspect window: the aspects of the chart in the wheel, in glyphs of the symbol font.

#include <QPlainTextEdit>
#include <QWidget>

#include "platform/messages.h"
#include "wheel/aspect_list.h"

namespace tolvanis {

class CWAspect : public QWidget {
    Q_OBJECT

  public:
    // Deletes itself when closed. The symbol font must be loaded.
    explicit CWAspect(QWidget* parent = nullptr);

    // Lists the chart's aspects under the orbs of the file; a list that is the same stays where its reader
    // is. A file that cannot be read, or that has too many lines, is told to the user and leaves the list
    // empty.
    void List(const WheelSnapshot& chart, const Path& orbsFile, Messages& messages);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  Q_SIGNALS:
    void mainWindowRequested();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QSize SizeFor(int letters, int lines) const;

    QPlainTextEdit Text1_;
};

}  // namespace tolvanis
