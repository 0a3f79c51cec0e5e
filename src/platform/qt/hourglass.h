#pragma once
// The hourglass pointer.

#include <QCursor>
#include <QGuiApplication>

namespace tolvanis {

// Shown from construction to destruction.
class Hourglass {
  public:
    Hourglass() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Hourglass() { QGuiApplication::restoreOverrideCursor(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

}  // namespace tolvanis
