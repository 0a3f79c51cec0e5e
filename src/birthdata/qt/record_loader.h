#pragma once
// Reading the file of a list window without keeping its user waiting.

#include <QObject>
#include <functional>

#include "birthdata/record_list.h"

namespace tolvanis {

class RecordLoader : public QObject {
    Q_OBJECT

  public:
    using Read = RecordList (*)(const Path&);
    using Done = std::function<void(RecordList)>;

    using QObject::QObject;

    // Gives the file's records to `done`: a file of usual size at once, a large one later, when a thread has
    // read it and the event loop runs. A reading that is under way when another one is started, or when the
    // loader goes, is dropped.
    void Start(const Path& file, Read read, Done done);

  private:
    void Finish(int number, RecordList& records, const Done& done);

    int number_ = 0;  // of the last reading
};

}  // namespace tolvanis
