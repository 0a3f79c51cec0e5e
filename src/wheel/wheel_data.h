#pragma once
// The wheel's tables: where planet glyphs and the labels of the cusps stand.

#include <array>
#include <cstdint>

#include "platform/data_files.h"
#include "platform/result.h"

namespace tolvanis {

inline constexpr std::string_view kCuspLabelFile = "HCDATA.DAT";
inline constexpr std::string_view kRadiusFile = "RADIUS.DAT";

// The first of the seven glyph slots of a house, wheel degrees; the slots lie 4 degrees apart.
inline constexpr std::array<int, 12> kSectorStart = {180, 209, 240, 272, 304, 335, 4, 34, 65, 95, 124, 153};
constexpr int SectorStart(int house) {
    return kSectorStart[static_cast<std::size_t>(house - 1)];
}

struct WheelData {
    // Of listing position i, elements 10 i - 10 to 10 i - 1 are five pairs (x, y) in wheel units: the upper
    // left corners of tens and units of the degrees, sign glyph, tens and units of the minutes. The last
    // element is not used.
    std::array<std::int16_t, 121> cuspLabels{};
    // Element d: the radius, in wheel units, of the upper left corner of a planet glyph at d wheel degrees.
    std::array<std::int16_t, 361> radius{};
};

// Reads both files: integers separated by line ends or commas, read up to the end of the table. A fault names
// the file that cannot be read, or that holds too few numbers.
Result<WheelData> ReadWheelData(const DataFiles& files);

}  // namespace tolvanis
