#include "platform/qt/message_boxes.h"

#include <QApplication>
#include <QFontMetrics>
#include <QInputDialog>
#include <QMessageBox>
#include <QScreen>
#include <algorithm>

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

// The widest that a message box lets a text be, in pixels; what goes beyond is cut off.
int WidestLine() {
    constexpr int kWidestBox = 1000;
    const QScreen* screen = QGuiApplication::primaryScreen();
    const int widest = screen == nullptr ? kWidestBox : std::min(kWidestBox, screen->availableSize().width());
    return widest / 2;  // beside the icon, within the margins
}

int Show(const std::string& title, const std::string& text, MessageIcon icon,
         QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton) {
    const ArrowPointer arrow;
    QMessageBox box(IconOf(icon), ToQt(title), WithBreaksInLongNames(ToQt(text)), buttons,
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    box.setDefaultButton(defaultButton);
    return box.exec();
}

}  // namespace

QString WithBreaksInLongNames(const QString& text) {
    constexpr QChar kZeroWidthSpace(0x200B);
    const QFontMetrics metrics(QApplication::font());
    const int widest = WidestLine();
    QString broken;
    int width = 0;  // since the last place where a line can end
    for (const QChar c : text) {
        width = c.isSpace() || c == QLatin1Char('/') ? 0 : width + metrics.horizontalAdvance(c);
        if (width > widest && !c.isLowSurrogate() && !c.isMark()) {
            broken += kZeroWidthSpace;
            width = metrics.horizontalAdvance(c);
        }
        broken += c;
    }
    return broken;
}

void MessageBoxes::Tell(const std::string& title, const std::string& text, MessageIcon icon) {
    Show(title, text, icon, QMessageBox::Ok, QMessageBox::Ok);
}

bool MessageBoxes::AskYesNo(const std::string& title, const std::string& text, Answer preset) {
    const auto button = preset == Answer::Yes ? QMessageBox::Yes : QMessageBox::No;
    return Show(title, text, MessageIcon::Question, QMessageBox::Yes | QMessageBox::No, button) ==
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
