#include "platform/qt/text_area.h"

#include <QFontMetrics>
#include <QTextDocument>
#include <QTextOption>

#include "platform/qt/listing_font.h"
#include "platform/qt/text.h"

namespace tolvanis {

QPlainTextEdit* MakeTextArea(const char* objectName, const char* accessibleName) {
    auto* area = new QPlainTextEdit;
    area->setObjectName(QLatin1String(objectName));
    area->setAccessibleName(QLatin1String(accessibleName));
    area->setFont(ListingFont(10.0));
    area->setLineWrapMode(QPlainTextEdit::NoWrap);
    area->setTabChangesFocus(true);
    // The fields of a record and the columns of a table keep their order, whatever script a name is in.
    QTextOption order = area->document()->defaultTextOption();
    order.setTextDirection(Qt::LeftToRight);
    area->document()->setDefaultTextOption(order);
    const QFontMetrics metrics(area->font());
    area->setMinimumSize(metrics.horizontalAdvance(QLatin1Char('M')) * 40, metrics.lineSpacing() * 8);
    return area;
}

void SetAreaText(QPlainTextEdit& area, const std::string& text) {
    area.setPlainText(ToQt(text));
    area.document()->setModified(false);
}

std::string AreaText(const QPlainTextEdit& area) {
    // The raw text keeps no-break spaces, which the plain text turns into blanks.
    QString text = area.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1String("\r\n"));
    text.replace(QChar::LineSeparator, QLatin1String("\r\n"));
    return text.toStdString();
}

}  // namespace tolvanis
