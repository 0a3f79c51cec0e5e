#include "platform/qt/entry_box.h"

#include <QFocusEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <algorithm>
#include <utility>

namespace tolvanis {
namespace {

// Takes out every character that is not accepted.
class CharacterFilter : public QValidator {
  public:
    CharacterFilter(const QString& accepted, QObject* parent) : QValidator(parent), accepted_(accepted) {}

    State validate(QString& input, int& position) const override {
        const auto refused = [&](QChar c) { return !accepted_.contains(c); };
        const QString front = input.left(position);
        position -= static_cast<int>(std::count_if(front.begin(), front.end(), refused));
        const bool nothingLeft = std::ranges::all_of(input, refused);
        if (nothingLeft && !input.isEmpty()) return Invalid;  // leaves the box as it was
        input.removeIf(refused);
        return Acceptable;
    }

  private:
    QString accepted_;
};

}  // namespace

EntryBox::EntryBox(const QString& accepted, int width, QWidget* parent)
    : QLineEdit(parent), accepted_(accepted) {
    if (!accepted.isEmpty()) filter_ = new CharacterFilter(accepted, this);
    setValidator(filter_);
    if (width > 0) {
        const int frame = sizeHint().height();  // room for the frame and the caret, in proportion to the font
        setFixedWidth(fontMetrics().horizontalAdvance(QLatin1Char('8')) * width + frame);
    }
}

void EntryBox::Fill(const QString& text) {
    if (text == this->text()) return;
    setValidator(nullptr);
    setText(text);
    setValidator(filter_);
}

// A key that is not accepted is discarded before it can replace a selected text.
void EntryBox::keyPressEvent(QKeyEvent* event) {
    const QString text = event->text();
    const bool types =
        !text.isEmpty() && text.front().isPrint() && !(event->modifiers() & Qt::ControlModifier);
    if (types && filter_ != nullptr && !accepted_.contains(text.front())) {
        event->ignore();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void EntryBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::PopupFocusReason) return;
    focusedByMouse_ = event->reason() == Qt::MouseFocusReason;
    selectAll();
}

void EntryBox::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    // The click that brought the focus has put the caret somewhere; a selection drawn with it stays.
    if (std::exchange(focusedByMouse_, false) && !hasSelectedText()) selectAll();
}

}  // namespace tolvanis
