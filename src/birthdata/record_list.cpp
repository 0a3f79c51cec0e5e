#include "birthdata/record_list.h"

#include "text/fields.h"

namespace tolvanis {

RecordList::RecordList(const Path& path, const Check& check) {
    LineReader reader(path);
    Read(reader, check);
    if (reader.HasFault()) {
        fault_ = RecordFault{0, CannotRead(path, reader.fault()).message};
    }
}

RecordList RecordList::OfText(std::string_view content, const Check& check) {
    LineReader reader = LineReader::OfText(content);
    RecordList list;
    list.Read(reader, check);
    return list;
}

void RecordList::Read(LineReader& reader, const Check& check) {
    for (std::string line; reader.Next(line) && !FirstField(line).empty();) {
        std::string problem = check(line);
        if (!problem.empty()) {
            fault_ = RecordFault{reader.LineNumber(), std::move(problem)};
            return;
        }
        lines_.Append(line);
    }
}

void TellRecordFault(const RecordFault& fault, const RecordFileKind& kind, Messages& messages) {
    if (fault.line == 0) return messages.Tell("Error!", fault.detail, MessageIcon::Stop);
    const auto text =
        std::string("You have an error in the current ")
            .append(kind.file)
            .append(
                " file. You need to check and see if you have entered the data correctly and in the proper "
                "amount. Please correct the data by clicking on the Edit this List command button in the ")
            .append(kind.window)
            .append(" window and edit the incorrect data.");
    messages.Tell("Error!", text, MessageIcon::Stop);
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
