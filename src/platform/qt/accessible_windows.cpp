#include "platform/qt/accessible_windows.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QWidget>

namespace tolvanis {
namespace {

// Qt asks for an object's classes in turn, the plainest one last.
QAccessibleInterface* WindowOf(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    const bool isPlain = className == QLatin1String(QWidget::staticMetaObject.className());
    if (widget == nullptr || !isPlain || !widget->isWindow()) return nullptr;
    return new QAccessibleWidget(widget, QAccessible::Window);
}

}  // namespace

void MakeWindowsAccessible() {
    QAccessible::installFactory(WindowOf);
}

}  // namespace tolvanis
