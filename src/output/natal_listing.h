#pragma once
// The natal listing: birth data, cusps, angles and points as fixed-pitch text.

#include "chart/chart_positions.h"
#include "chart/natal_data.h"
#include "output/data_buffer.h"

namespace tolvanis {

// Appends the listing of a chart to the data buffer; a modern chart has a line more in its header.
void WriteNatalListing(DataBuffer& buffer, const NatalData& natal, const ChartPositions& chart);

// The birth in one line, as the listing's header and the report's title page show it.
std::string BirthDataLine(const NatalData& natal);

}  // namespace tolvanis
