#include "platform/qt/entry_box.h"

#include <QFocusEvent>
#include <QFontMetrics>
#include <algorithm>

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
        input.removeIf(refused);
        return Acceptable;
    }

  private:
    QString accepted_;
};

}  // namespace

EntryBox::EntryBox(const QString& accepted, int width, QWidget* parent) : QLineEdit(parent) {
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
