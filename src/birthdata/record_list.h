#pragma once
// The records of a comma-separated file as a list: names, cities or time zones.

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

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

    std::size_t size() const { return ends_.size(); }
    std::string_view Line(std::size_t index) const;
    const std::optional<RecordFault>& fault() const { return fault_; }

  private:
    std::string text_;
    std::vector<std::size_t> ends_;  // where each line ends in text_
    std::optional<RecordFault> fault_;
};

// The fault as a sentence below a list; an empty text without one.
std::string ProblemText(const std::optional<RecordFault>& fault);

// "3 fields instead of 5", for faults.
std::string WrongFieldCount(std::size_t count, std::size_t expected);

}  // namespace tolvanis
