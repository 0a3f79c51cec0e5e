// The delivered atlas program. It is started as another one would be, as ATLAS.EXE in its own directory, and
// leaves its result in the working directory that PCATPATH.TXT names.

#include <QApplication>
#include <QIcon>
#include <cstdlib>
#include <iostream>

#include "app/app_directory.h"
#include "app/exit_status.h"
#include "birthdata/atlas_exchange.h"
#include "birthdata/qt/atlas_window.h"
#include "platform/qt/message_boxes.h"
#include "platform/qt/missing_display.h"
#include "platform/terminal.h"

using namespace tolvanis;

namespace {

constexpr const char* kUsage =
    "Usage: tolvanis-atlas [--help | --version]\n"
    "\n"
    "Finds a place and the time zone in force there. Started by \"ACS Atlas\" of TOLVANIS,\n"
    "it hands both over in the file TSRTEMP.TXT.\n";

int Fail(Messages& messages, const std::string& message) {
    messages.Tell("Error!", message, MessageIcon::Stop);
    return EXIT_FAILURE;
}

// The exchange file in the directory that PCATPATH.TXT of the present directory names, or in that itself.
Path ExchangeFile() {
    LineReader reader(kAtlasPathFile);
    std::string directory;
    if (!reader.Next(directory)) directory = ".";
    return FindFile(PathFromText(directory), kAtlasExchangeFile);
}

}  // namespace

int main(int argc, char** argv) {
    OccupyStandardStreams();
    OutliveFileSizeLimits();
    if (argc > 1) {
        const std::string_view argument = argv[1];
        if (argument == "--help" || argument == "-h") return PrintAbout("tolvanis-atlas", kUsage);
        if (argument == "--version")
            return PrintAbout("tolvanis-atlas", "tolvanis-atlas " TOLVANIS_VERSION "\n");
        TellOn(std::cerr, "tolvanis-atlas: unknown argument \"" + std::string(argument) + "\"\n\n" + kUsage);
        return kWrongUsage;
    }
    if (!HasDisplay()) {
        std::cerr << "tolvanis-atlas: there is no display to open windows on\n";
        return EXIT_FAILURE;
    }
    EndPlainlyWithoutDisplay("tolvanis-atlas");
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tolvanis-atlas"));
    QApplication::setApplicationVersion(QStringLiteral(TOLVANIS_VERSION));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/tolvanis.svg")));
    MessageBoxes messages;
    const Path exchangeFile = ExchangeFile();
    std::error_code error;
    std::filesystem::remove(exchangeFile, error);  // a cancelled look-up must not offer the last place
    const Result<DataFiles> files = ApplicationDirectory(HintsOfProcess({}), FirstStart::LeaveAsIs);
    if (!files) return Fail(messages, files.message());
    const Result<ZoneBook> book = ZoneBook::Open(*files);
    if (!book) return Fail(messages, book.message());
    const char* birth = std::getenv(kAtlasBirthVariable);
    AtlasWindow window(*book, BirthOfEnvironment(birth != nullptr ? birth : ""), exchangeFile, messages);
    window.show();
    return QApplication::exec();
}
