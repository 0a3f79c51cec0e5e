#include <QApplication>
#include <QIcon>
#include <iostream>
#include <vector>

#include "app/app_directory.h"
#include "app/desktop_arguments.h"
#include "app/own_atlas.h"
#include "app/qt/desktop.h"
#include "app/qt/file_dialogs.h"
#include "app/qt/wheel_command_run.h"
#include "platform/clock.h"
#include "platform/qt/message_boxes.h"
#include "platform/qt/missing_display.h"
#include "platform/terminal.h"

using namespace tolvanis;

namespace {

int Run(const DesktopArguments& arguments) {
    MessageBoxes messages;
    const DirectoryHints hints = HintsOfProcess(arguments.appDirectory);
    const Result<DataFiles> files = ApplicationDirectory(hints, FirstStart::FillUserDirectory);
    if (!files) {
        messages.Tell("Error!", files.message(), MessageIcon::Stop);
        return EXIT_FAILURE;
    }
    ProgramState state;
    state.files = *files;
    state.order = HostDateTimeOrder();
    // Without the delivered atlas the user is asked for another one.
    const auto atlas = PrepareOwnAtlas(files->directory(), hints.programDirectory);
    if (atlas) state.ownAtlas = *atlas;
    DesktopFileDialogs dialogs(files->directory());
    Desktop desktop(state, {messages, dialogs, PresentMoment});
    QObject::connect(&desktop, &Desktop::ended, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    if (!desktop.Start()) return EXIT_FAILURE;
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
    OccupyStandardStreams();
    OutliveFileSizeLimits();
    const std::vector<std::string_view> given(argv + 1, argv + argc);
    const Result<DesktopArguments> arguments = ParseDesktopArguments(given);
    if (!arguments) {
        TellOn(std::cerr, "tolvanis: " + arguments.message() + "\n\n" + std::string(kDesktopUsage));
        return kWrongUsage;
    }
    if (arguments->help) return PrintAbout("tolvanis", kDesktopUsage);
    if (arguments->version) return PrintAbout("tolvanis", "tolvanis " TOLVANIS_VERSION "\n");
    if (arguments->wheel)
        return WithinMemory("tolvanis", [&] {
            return RunWheelCommand(given, {HostClock, HostDateTimeOrder()}, argv);
        });
    if (!HasDisplay()) {
        std::cerr << "tolvanis: there is no display to open windows on; tolvanis-chart works without one\n";
        return EXIT_FAILURE;
    }
    EndPlainlyWithoutDisplay("tolvanis");
    int qtArgumentCount = 1;
    QApplication application(qtArgumentCount, argv);
    QApplication::setApplicationName(QStringLiteral("tolvanis"));
    QApplication::setApplicationVersion(QStringLiteral(TOLVANIS_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("tolvanis"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/tolvanis.svg")));
    QApplication::setQuitOnLastWindowClosed(false);
    return Run(*arguments);
}
