#include "platform/qt/escape_key.h"

#include <QKeyEvent>

namespace tolvanis {
namespace {

class EscapeKey : public QObject {
  public:
    EscapeKey(QWidget& window, std::function<void()> there) : QObject(&window), there_(std::move(there)) {
        window.installEventFilter(this);
    }

    // The window itself gets only the keys that its widgets leave.
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        if (static_cast<const QKeyEvent&>(*event).key() != Qt::Key_Escape) return false;
        there_();
        return true;
    }

  private:
    std::function<void()> there_;
};

}  // namespace

void LeadEscapeTo(QWidget& window, std::function<void()> there) {
    new EscapeKey(window, std::move(there));
}

}  // namespace tolvanis
