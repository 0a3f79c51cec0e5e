#pragma once
// The command that writes a chart wheel as a picture.

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app/birth_arguments.h"
#include "aspects/orbs_file.h"
#include "chart/options.h"
#include "platform/data_files.h"
#include "wheel/wheel_placement.h"

namespace tolvanis {

struct WheelArguments : BirthArguments {
    std::string file;  // ends in .svg, .pdf or .png
    ChartType type = ChartType::American;
    int size = 1000;  // pixels, 100 to 10000
};

// A fault says what is wrong with the arguments.
Result<WheelArguments> ParseWheelArguments(std::span<const std::string_view> arguments);

// All that the picture shows.
struct WheelPicture {
    DataFiles files;
    Options options;
    WheelData data;
    WheelSnapshot chart;
    OrbTable orbs;                   // of the zodiac ring
    std::vector<std::string> notes;  // what the user should know of options and birth
};

// Reads the files and computes the chart; nothing is written. A fault names the file or the birth, and what
// is wrong with it.
Result<WheelPicture> PrepareWheel(const WheelArguments& arguments, const HostTime& time);

}  // namespace tolvanis
