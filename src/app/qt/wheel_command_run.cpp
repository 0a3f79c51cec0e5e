#include "app/qt/wheel_command_run.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <iostream>

#include "app/desktop_arguments.h"
#include "platform/qt/symbol_font.h"
#include "platform/terminal.h"
#include "wheel/qt/wheel_export.h"

namespace tolvanis {
namespace {

ExitStatus Refuse(const std::string& fault) {
    TellOn(std::cerr, "tolvanis: " + fault);
    return kSomethingRefused;
}

}  // namespace

ExitStatus RunWheelCommand(std::span<const std::string_view> arguments, const HostTime& time,
                           char** programArguments) {
    const Result<WheelArguments> wheel = ParseWheelArguments(arguments);
    if (!wheel) {
        TellOn(std::cerr, "tolvanis: " + wheel.message() + "\n\n" + std::string(kDesktopUsage));
        return kWrongUsage;
    }
    const Result<WheelPicture> picture = PrepareWheel(*wheel, time);
    if (!picture) return Refuse(picture.message());
    for (const std::string& note : picture->notes) TellOn(std::cerr, "tolvanis: " + note);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(
        QStringLiteral("default.warning=false"));  // of a desktop that is not there
    int argumentCount = 1;
    const QGuiApplication application(argumentCount, programArguments);
    if (!LoadSymbolFont(picture->files)) {
        return Refuse("the symbol font HORARY.ttf cannot be loaded from " +
                      picture->files.directory().string());
    }
    const double size = wheel->size;
    const WheelRequest request{.chart = picture->chart,
                               .data = picture->data,
                               .options = picture->options,
                               .type = wheel->type,
                               .width = size,
                               .height = size,
                               .orbs = picture->orbs};
    const Result<void> written = ExportWheel(request, wheel->file);
    return written ? kAllComputed : Refuse(written.message());
}

}  // namespace tolvanis
