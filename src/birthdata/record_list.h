#pragma once
// The records of a comma-separated file as a list: names, cities or time zones.

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/messages.h"
#include "text/text_list.h"

namespace tolvanis {

struct RecordFault {
    int line = 0;        // counted from 1; 0 when the file itself cannot be read
    std::string detail;  // what is wrong: "the record has 5 fields instead of 7"
};

// Reads up to the end of the file, the first record whose first field is empty, or the first record that
// cannot be read; the records in front of it stay. Holds the lines as one text, so that a million records
// take little more memory than their file.
class RecordList {
  public:
    // What is wrong with a record, or an empty text.
    using Check = std::function<std::string(std::string_view line)>;

    RecordList() = default;
    RecordList(const Path& path, const Check& check);
    // The records of a file's content.
    static RecordList OfText(std::string_view content, const Check& check);

    std::size_t size() const { return lines_.size(); }
    std::string_view Line(std::size_t index) const { return lines_[index]; }
    const std::optional<RecordFault>& fault() const { return fault_; }

  private:
    void Read(LineReader& reader, const Check& check);

    TextList lines_;
    std::optional<RecordFault> fault_;
};

// Tells the user that a file could not be read, or not to its end. `kind` names it and its window, as in
// "names" and "Names".
struct RecordFileKind {
    std::string_view file;
    std::string_view window;
};
void TellRecordFault(const RecordFault& fault, const RecordFileKind& kind, Messages& messages);

// The fault as a sentence below a list; an empty text without one.
std::string ProblemText(const std::optional<RecordFault>& fault);

// "3 fields instead of 5", for faults.
std::string WrongFieldCount(std::size_t count, std::size_t expected);

}  // namespace tolvanis
