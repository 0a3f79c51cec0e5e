#include "platform/qt/missing_display.h"

#include <QCoreApplication>
#include <cstdlib>
#include <iostream>

namespace tolvanis {
namespace {

const char* programName = "";
QtMessageHandler usualHandler = nullptr;

void TellAndEnd(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (!QCoreApplication::startingUp()) return usualHandler(type, context, message);
    if (type != QtFatalMsg) return;
    std::cerr << programName << ": the display cannot be reached, so there is nothing to open windows on\n";
    std::_Exit(EXIT_FAILURE);
}

}  // namespace

void EndPlainlyWithoutDisplay(const char* program) {
    programName = program;
    usualHandler = qInstallMessageHandler(TellAndEnd);
}

}  // namespace tolvanis
