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
    // Lists the chart's aspects under the orbs of the file. A file that cannot be read, or that has too many
    // lines, is told to the user and leaves the list empty. The symbol font must be loaded.
    CWAspect(const WheelSnapshot& chart, const Path& orbsFile, Messages& messages, QWidget* parent = nullptr);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    QPlainTextEdit Text1_;
};

}  // namespace tolvanis
