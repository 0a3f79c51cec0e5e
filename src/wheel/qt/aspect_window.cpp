#include "wheel/qt/aspect_window.h"

#include "platform/qt/hourglass.h"
#include "platform/qt/symbol_font.h"

namespace tolvanis {

CWAspect::CWAspect(const WheelSnapshot& chart, const Path& orbsFile, Messages& messages, QWidget* parent)
    : QWidget(parent, Qt::Window), Text1_(this) {
    const Hourglass hourglass;
    setObjectName(QStringLiteral("CWAspect"));
    setWindowTitle(QStringLiteral("Aspects"));
    setAttribute(Qt::WA_DeleteOnClose);
    Text1_.setObjectName(QStringLiteral("Text1"));
    Text1_.setAccessibleName(QStringLiteral("Aspects"));
    Text1_.setReadOnly(true);
    Text1_.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    QFont font(QString::fromLatin1(kSymbolFontFamily));
    font.setPointSizeF(12.0);
    Text1_.setFont(font);
    resize(220, 480);
    OrbTable orbs{};
    if (const Result<void> read = ReadOrbsFile(orbsFile, orbs); !read) {
        messages.Tell("Error!", read.message(), MessageIcon::Warning);
        return;
    }
    Text1_.setPlainText(QString::fromStdString(AspectListText(ListAspects(chart, orbs))));
}

void CWAspect::resizeEvent(QResizeEvent*) {
    Text1_.setGeometry(rect());
}

}  // namespace tolvanis
