#include "birthdata/record_list.h"

#include "text/fields.h"

namespace tolvanis {

RecordList::RecordList(const Path& path, const Check& check) {
    LineReader reader(path);
    for (std::string line; reader.Next(line) && !FirstField(line).empty();) {
        if (std::string problem = check(line); !problem.empty()) {
            fault_ = RecordFault{reader.LineNumber(), std::move(problem)};
            return;
        }
        text_ += line;
        ends_.push_back(text_.size());
    }
    if (!reader.IsOpen()) {
        fault_ = RecordFault{0, "Cannot read the file " + path.string() + ": " + reader.Problem() + "."};
    }
}

std::string_view RecordList::Line(std::size_t index) const {
    const std::size_t start = index == 0 ? 0 : ends_[index - 1];
    return std::string_view(text_).substr(start, ends_[index] - start);
}

std::string ProblemText(const std::optional<RecordFault>& fault) {
    if (!fault) return {};
    if (fault->line == 0) return fault->detail;
    return "Line " + std::to_string(fault->line) + ": " + fault->detail + ". The list ends before it.";
}

std::string WrongFieldCount(std::size_t count, std::size_t expected) {
    return std::to_string(count) + (count == 1 ? " field" : " fields") + " instead of " +
           std::to_string(expected);
}

}  // namespace tolvanis
