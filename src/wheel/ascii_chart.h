#pragma once
// The chart as a drawing in plain text.

#include <array>
#include <string>

#include "output/data_buffer.h"
#include "wheel/wheel_snapshot.h"

namespace tolvanis {

inline constexpr int kAsciiRows = 25;
inline constexpr int kAsciiColumns = 79;

// 25 rows of 79 characters: axes and diagonals around a central box, the cusps at the border and the points
// from Sun to Part of Fortune in their houses. A house of more than seven points leaves out its nodes,
// which take no place either, and runs on into the places of the next house.
std::array<std::string, kAsciiRows> DrawAsciiChart(const WheelSnapshot& chart);

// Appends the title lines and the drawing to the data buffer.
void WriteAsciiChart(DataBuffer& buffer, const WheelSnapshot& chart);

}  // namespace tolvanis
