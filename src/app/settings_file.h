#pragma once
// The settings that the program keeps from run to run, and their file.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "output/data_view.h"
#include "platform/files.h"

namespace tolvanis {

inline constexpr std::string_view kSettingsFileName = "Tolvanis.ini";

struct Settings {
    DataViewSettings dataView;
    // The main window's placement in twips.
    double TOLVANISTop = 0.0;
    double TOLVANISLeft = 900.0;
    double TOLVANISHeight = 675.0;
    double TOLVANISWidth = 10860.0;
    std::int16_t StartScale = 287;  // wheel scale
    std::int16_t TypeChart = 0;     // wheel style: 1 European, 2 zodiac ring, else American
    std::string DataFile;           // the current names file
    std::string GeoDataFile;        // the current cities file
    std::string AtlasDir;           // directory of the atlas program; empty when there is none
    std::string InterpsDir;         // directory of the interpretation texts, with its separator at the end

    // A list that is away (a stick that is not plugged in), and the one that stands in for it in this run.
    struct StandIn {
        std::string away;
        std::string used;
        friend bool operator==(const StandIn&, const StandIn&) = default;
    };
    std::vector<StandIn> standIns;

    friend bool operator==(const Settings&, const Settings&) = default;
};

Settings DefaultSettings(const Path& applicationDirectory);

// Takes over one line, "key=value". Unknown keys and values outside a key's rule change nothing.
void ApplySettingsLine(std::string_view line, Settings& settings);

// The defaults overlaid by the settings file of the directory; a missing file gives the defaults, one that
// is there and cannot be read to its end a fault. InterpsDir gets a separator (JoinPathText) when it ends in
// neither "/" nor "\". Files that are no longer where the settings say, but in the directory, are taken from
// there, as are the atlas and the texts: a portable copy may have been moved. One that lay elsewhere than the
// texts has not been moved with them: its path is kept in the file.
Result<Settings> ReadSettings(const Path& applicationDirectory);

// The file's text, lines ending in CR LF; a setting that is an empty text has none.
std::string SettingsText(const Settings& settings);

Result<void> WriteSettings(const Path& applicationDirectory, const Settings& settings);

}  // namespace tolvanis
