#pragma once
// What the program knows while it runs; one instance lives from start to exit.

#include <string>

#include "app/settings_file.h"
#include "astro/natal_chart.h"
#include "birthdata/names_file.h"
#include "interp/report_buffer.h"
#include "platform/data_files.h"
#include "platform/screen_constants.h"
#include "text/dates.h"

namespace tolvanis {

inline constexpr std::string_view kStartTitlePrefix = "Tolvanis - ";
inline constexpr std::string_view kTitlePrefixAfterOptions = "TOLVANIS - ";  // once options have been saved

struct ProgramState {
    DataFiles files;
    Options options;
    Settings settings;
    DateTimeOrder order;
    ScreenConstants screen;
    std::string titlePrefix{kStartTitlePrefix};
    Method method;         // the ticked items
    std::string ownAtlas;  // the directory of the delivered atlas, or empty
    NamesState names;
    NatalChart chart;
    bool chartComputed = false;
    DataBuffer buffer;
    ReportBuffer report;
    std::string SaveFileName;  // where Save writes, for listings and reports; empty until the user has chosen
};

}  // namespace tolvanis
