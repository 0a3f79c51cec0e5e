#pragma once
// A computed chart as the command line prints it.

#include <string>

#include "app/placed_birth.h"
#include "astro/natal_chart.h"
#include "platform/data_files.h"

namespace tolvanis {

// The listing and the aspect grid as the Data window shows them, with the host's line ends.
std::string ChartAsText(const NatalChart& chart, const Options& options);

// The ASCII chart as the Data window shows it, with the host's line ends.
std::string ChartAsAscii(const NatalChart& chart);

// The natal report in pages as the viewer saves it, with the host's line ends, made of the texts and the
// personal block of the application directory. A fault when it is longer than a report can be.
Result<std::string> ChartAsReport(const NatalChart& chart, const Options& options, const DataFiles& files);

// One JSON object and a line end: the members that docs/file-formats.md names, numbers at full precision,
// angles in degrees; with `placed` also what the atlas and the zone history know of the birth.
std::string ChartAsJson(const NatalChart& chart, const PlacedBirth* placed = nullptr);

}  // namespace tolvanis
