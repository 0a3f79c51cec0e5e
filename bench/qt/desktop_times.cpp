// How fast the desktop program answers, on Qt's offscreen platform:
//   process start to the natal input window painted, and OK to the listing painted in the Data window.
//
//     desktop_times DATA_DIRECTORY [RUNS]
//
// Prints the median and the slowest of the runs in milliseconds. The first start, with cold caches, is not
// counted.

#include <QApplication>
#include <QElapsedTimer>
#include <QIcon>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "app/qt/desktop.h"
#include "app/qt/file_dialogs.h"
#include "platform/clock.h"
#include "platform/qt/message_boxes.h"

using namespace tolvanis;

namespace {

// Notes when a widget is painted.
class PaintWatch : public QObject {
  public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        painted_ = painted_ || event->type() == QEvent::Paint;
        return false;
    }
    void Wait() const {
        while (!painted_) QCoreApplication::processEvents();
    }

  private:
    bool painted_ = false;
};

// One whole start up to the painted window, then OK up to the painted listing; prints that time.
int RunOnce(const char* directory, int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/tolvanis.svg")));
    ProgramState state;
    state.files = DataFiles(directory);
    state.order = HostDateTimeOrder();
    MessageBoxes messages;
    DesktopFileDialogs dialogs(directory);
    Desktop desktop(state, {messages, dialogs, PresentMoment});
    if (!desktop.Start()) return EXIT_FAILURE;
    PaintWatch(desktop.natalInput()).Wait();
    std::puts("shown");
    std::fflush(stdout);

    QElapsedTimer timer;
    timer.start();
    desktop.natalInput().findChild<QPushButton*>(QStringLiteral("cmdOK"))->click();
    QWidget* text = desktop.dataWindow()->findChild<QPlainTextEdit*>(QStringLiteral("Text1"))->viewport();
    PaintWatch(*text).Wait();
    std::printf("%.3f\n", static_cast<double>(timer.nsecsElapsed()) / 1e6);
    return EXIT_SUCCESS;
}

void Report(const char* what, std::vector<double> times) {
    std::sort(times.begin(), times.end());
    std::printf("%-45s median %7.1f ms, slowest %7.1f ms\n", what, times[times.size() / 2], times.back());
}

int RunAll(int runs, int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir directory;
    std::filesystem::copy(argv[1], directory.path().toStdString());
    std::vector<double> starts, answers;
    for (int run = 0; run <= runs; ++run) {
        QProcess program;
        QElapsedTimer timer;
        timer.start();
        program.start(QCoreApplication::applicationFilePath(), {directory.path(), QStringLiteral("--once")});
        while (!program.canReadLine() && program.waitForReadyRead()) {
        }
        const double start = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        program.waitForFinished();
        if (program.exitCode() != EXIT_SUCCESS) return EXIT_FAILURE;
        program.readLine();
        if (run == 0) continue;
        starts.push_back(start);
        answers.push_back(program.readLine().trimmed().toDouble());
    }
    Report("process start to natal input window painted", starts);
    Report("OK to listing painted", answers);
    return EXIT_SUCCESS;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("Usage: desktop_times DATA_DIRECTORY [RUNS]\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc > 2 && std::string_view(argv[2]) == "--once") return RunOnce(argv[1], argc, argv);
    return RunAll(argc > 2 ? std::max(1, std::atoi(argv[2])) : 20, argc, argv);
}
