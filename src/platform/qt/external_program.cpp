#include "platform/qt/external_program.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProcess>
#include <QProcessEnvironment>
#include <memory>

#include "platform/qt/text.h"

namespace tolvanis {

ProgramRun RunAndWait(const Path& program, AtExit atExit,
                      const std::vector<std::pair<std::string, std::string>>& more) {
    auto process = std::make_unique<QProcess>();
    QEventLoop loop;
    QObject::connect(process.get(), &QProcess::finished, &loop, &QEventLoop::quit);
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, &loop, &QEventLoop::quit);
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto& [name, value] : more) environment.insert(ToQt(name), ToQt(value));
    process->setProcessEnvironment(environment);
    const Path absolute = AbsolutePath(program);  // it starts in its own directory
    process->setWorkingDirectory(ToQt(absolute.parent_path().string()));
    process->start(ToQt(absolute.string()), QStringList());
    if (!process->waitForStarted()) return ProgramRun::NotStarted;
    if (process->state() != QProcess::NotRunning) loop.exec();
    if (process->state() == QProcess::NotRunning) return ProgramRun::Ended;
    if (atExit == AtExit::EndIt) {
        process->terminate();
        process->waitForFinished(1000);  // milliseconds
        return ProgramRun::Abandoned;
    }
    // The other program belongs to the user: the destructor, which would kill it, must not run.
    static_cast<void>(process.release());
    return ProgramRun::Abandoned;
}

}  // namespace tolvanis
