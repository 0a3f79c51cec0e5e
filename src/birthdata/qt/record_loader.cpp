#include "birthdata/qt/record_loader.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>
#include <memory>

#include "platform/qt/hourglass.h"

namespace tolvanis {
namespace {

constexpr std::uintmax_t kLargeFile = 1'000'000;  // bytes; a smaller one is read in less than 0.1 s

bool IsLarge(const Path& file) {
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(FindPath(file), error);
    return !error && size >= kLargeFile;
}

RecordList ReadAtOnce(const Path& file, RecordLoader::Read read) {
    const Hourglass hourglass;
    return read(file);
}

}  // namespace

void RecordLoader::Start(const Path& file, Read read, Done done) {
    ++number_;
    if (!IsLarge(file)) return done(ReadAtOnce(file, read));
    // The program waits for the pool's threads before it ends.
    QThreadPool::globalInstance()->start(
        [file, read, done = std::move(done), number = number_, loader = QPointer(this)] {
            const auto records = std::make_shared<RecordList>(read(file));
            const auto finish = [records, done, number, loader] {
                if (loader != nullptr) loader->Finish(number, *records, done);
            };
            QMetaObject::invokeMethod(qApp, finish, Qt::QueuedConnection);
        });
}

void RecordLoader::Finish(int number, RecordList& records, const Done& done) {
    if (number == number_) done(std::move(records));
}

}  // namespace tolvanis
