#pragma once
// A computed chart as the command line prints it.

#include <string>

#include "astro/natal_chart.h"

namespace tolvanis {

// The listing and the aspect grid as the Data window shows them, with the host's line ends.
std::string ChartAsText(const CurrentChart& chart, const Options& options);

// The ASCII chart as the Data window shows it, with the host's line ends.
std::string ChartAsAscii(const CurrentChart& chart);

// One JSON object and a line end: the members that docs/file-formats.md names, numbers at full precision,
// angles in degrees.
std::string ChartAsJson(const CurrentChart& chart);

}  // namespace tolvanis
