#include "platform/qt/message_boxes.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>

#include "platform/qt/text.h"

namespace tolvanis {
namespace {

QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Information:
            return QMessageBox::Information;
        case MessageIcon::Warning:
            return QMessageBox::Warning;
        case MessageIcon::Question:
            return QMessageBox::Question;
        case MessageIcon::Stop:
            return QMessageBox::Critical;
        case MessageIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

// The pointer is an arrow while a box waits for an answer, whatever is going on around it.
class ArrowPointer {
  public:
    ArrowPointer() { QGuiApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~ArrowPointer() { QGuiApplication::restoreOverrideCursor(); }
};

int Show(const std::string& title, const std::string& text, MessageIcon icon,
         QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton) {
    const ArrowPointer arrow;
    QMessageBox box(IconOf(icon), ToQt(title), ToQt(text), buttons, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    box.setDefaultButton(defaultButton);
    return box.exec();
}

}  // namespace

void MessageBoxes::Tell(const std::string& title, const std::string& text, MessageIcon icon) {
    Show(title, text, icon, QMessageBox::Ok, QMessageBox::Ok);
}

bool MessageBoxes::AskYesNo(const std::string& title, const std::string& text) {
    return Show(title, text, MessageIcon::Question, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes) ==
           QMessageBox::Yes;
}

Answer MessageBoxes::AskYesNoCancel(const std::string& title, const std::string& text) {
    const int button = Show(title, text, MessageIcon::Question,
                            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Cancel);
    if (button == QMessageBox::Yes) return Answer::Yes;
    return button == QMessageBox::No ? Answer::No : Answer::Cancel;
}

std::string MessageBoxes::AskText(const std::string& title, const std::string& prompt) {
    const ArrowPointer arrow;
    return QInputDialog::getText(QApplication::activeWindow(), ToQt(title), ToQt(prompt)).toStdString();
}

}  // namespace tolvanis
