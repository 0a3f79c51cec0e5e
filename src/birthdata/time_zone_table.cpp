#include "birthdata/time_zone_table.h"

#include "text/columns.h"
#include "text/fields.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

constexpr std::size_t kFieldCount = 3;
constexpr std::size_t kNameWidth = 32;
constexpr std::size_t kAbbreviationWidth = 4;

std::string FaultOfLine(std::string_view line) {
    const std::vector<std::string> fields = SplitFields(line);
    if (fields.size() != kFieldCount) return "the record has " + WrongFieldCount(fields.size(), kFieldCount);
    if (CharacterCount(fields[0]) > kNameWidth) return "the zone name has more than 32 characters";
    if (CharacterCount(fields[1]) > kAbbreviationWidth) return "the abbreviation has more than 4 characters";
    return {};
}

}  // namespace

RecordList ReadTimeZones(const Path& path) {
    return RecordList(path, FaultOfLine);
}

void TellTimeZoneFault(const RecordFault& fault, Messages& messages) {
    if (fault.line == 0) {
        messages.Tell("Error!", fault.detail, MessageIcon::Stop);
    } else {
        TellTimeZonesCorrupt(messages);
    }
}

void TellTimeZonesCorrupt(Messages& messages) {
    messages.Tell("Error!", "The file TZ.DAT is corrupt.", MessageIcon::Stop);
}

std::string TimeZoneLineAt(const RecordList& zones, std::size_t index) {
    const std::vector<std::string> fields = SplitFields(zones.Line(index));
    return PadRight(fields[0], kNameWidth) + " - " + PadLeft(fields[1], kAbbreviationWidth) + " =" +
           PadSignedToFour(fields[2]);
}

std::optional<ZoneChoice> ChooseTimeZone(const RecordList& zones, std::string_view line) {
    const std::string_view name = TrimTrailingBlanks(line.substr(0, line.find('-')));
    for (std::size_t i = 0; i < zones.size(); ++i) {
        const std::vector<std::string> fields = SplitFields(zones.Line(i));
        if (fields[0] != name) continue;
        const double offset = LeadingNumber(fields[2]);
        return ZoneChoice{NumberText(offset), offset < 0};
    }
    return std::nullopt;
}

}  // namespace tolvanis
