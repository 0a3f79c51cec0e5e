#include "wheel/wheel_data.h"

#include <span>

#include "text/columns.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

// How many numbers of the line went into the table; blank pieces hold none.
std::size_t TakeNumbers(std::string_view line, std::span<std::int16_t> table) {
    std::size_t count = 0;
    while (!line.empty() && count < table.size()) {
        const std::size_t comma = line.find(',');
        const std::string_view piece = TrimBlanks(line.substr(0, comma));
        if (!piece.empty()) table[count++] = RoundToInt16(LeadingNumber(piece));
        line = comma == std::string_view::npos ? std::string_view() : line.substr(comma + 1);
    }
    return count;
}

// `needed` is the number of elements that are used.
Result<void> ReadTable(const Path& path, std::span<std::int16_t> table, std::size_t needed) {
    LineReader reader(path);
    std::size_t count = 0;
    for (std::string line; count < table.size() && reader.Next(line);) {
        count += TakeNumbers(line, table.subspan(count));
    }
    if (reader.HasFault()) return CannotRead(path, reader.fault());
    if (count < needed) {
        return Fault{path.string() + " holds " + std::to_string(count) + " numbers; the wheel needs " +
                     std::to_string(needed) + "."};
    }
    return {};
}

}  // namespace

Result<WheelData> ReadWheelData(const DataFiles& files) {
    WheelData data;
    const auto labels = ReadTable(files.Find(kCuspLabelFile), data.cuspLabels, 120);
    if (!labels) return labels.fault();
    const auto radii = ReadTable(files.Find(kRadiusFile), data.radius, data.radius.size());
    if (!radii) return radii.fault();
    return data;
}

}  // namespace tolvanis
