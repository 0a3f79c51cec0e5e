#include "birthdata/atlas_lookup.h"

#include <cmath>
#include <vector>

#include "birthdata/atlas_exchange.h"
#include "text/columns.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

// Far more than any coordinate needs; what a damaged file holds must not fill the screen.
constexpr std::size_t kLongestCoordinate = 40;
constexpr double kMostZoneHours = 24.0;
constexpr std::size_t kExchangeLines = 5;

// Directories come from the user and from the atlas, with either separator at their ends or none.
Path FileIn(const std::string& directory, std::string_view name) {
    return FindFile(PathFromText(directory), name);
}

// The first lines of a file, up to `count`; nothing when there is none or it cannot be read.
std::optional<std::vector<std::string>> FirstLines(const Path& path, std::size_t count) {
    LineReader reader(path);
    std::vector<std::string> lines;
    for (std::string line; lines.size() < count && reader.Next(line);) lines.push_back(line);
    if (reader.HasFault() || lines.empty()) return std::nullopt;
    return lines;
}

std::optional<Coordinate> ReadCoordinate(std::string_view text, const CoordinateForm& form) {
    const auto parts = SplitCoordinate(text, form);
    if (!parts) return std::nullopt;
    return CoordinateOf(parts->degrees, parts->minutes, parts->negative);
}

// Whether a text is degrees, the letter, and minutes, with or without decimals and blanks.
bool IsCoordinate(std::string_view text, const CoordinateForm& form) {
    const auto parts = SplitCoordinate(text, form);
    const auto isNumber = [](std::string_view part) {
        return EntireNumber(part) &&
               TrimBlanks(part).find_first_not_of("0123456789.") == std::string_view::npos;
    };
    return parts && isNumber(parts->degrees) && isNumber(parts->minutes) && IsWithin(*parts, form);
}

std::string LineFault(int number, const std::string& line, std::string_view what) {
    return "line " + std::to_string(number) + " (\"" +
           std::string(FirstCharacters(line, kLongestCoordinate)) + "\") is no " + std::string(what);
}

std::string Shortened(const std::string& line) {
    return std::string(FirstCharacters(TrimBlanks(line), kLongestCoordinate));
}

// What is wrong with the lines of an exchange file, as "line 2 ...", or an empty text.
std::string ExchangeFault(const std::vector<std::string>& lines) {
    if (lines.size() < kExchangeLines)
        return "it has " + std::to_string(lines.size()) + " of " + std::to_string(kExchangeLines) + " lines";
    if (!IsCoordinate(lines[1], kLatitudeForm)) return LineFault(2, lines[1], "latitude");
    if (!IsCoordinate(lines[2], kLongitudeForm)) return LineFault(3, lines[2], "longitude");
    const std::optional<double> zone = EntireNumber(lines[4]);
    if (!zone || std::abs(*zone) > kMostZoneHours) return LineFault(5, lines[4], "time zone in hours");
    return {};
}

}  // namespace

Place PlaceOfAtlas(const AtlasResult& result) {
    return {ReadCoordinate(result.longitude, kLongitudeForm), ReadCoordinate(result.latitude, kLatitudeForm),
            NumberText(result.timeZone)};
}

std::optional<Place> AtlasLookup::LookUp(std::string& atlasDir) {
    if (running_) return std::nullopt;
    running_ = true;
    std::optional<Place> place;
    if (RunAtlas(atlasDir)) {
        const std::optional<AtlasResult> result = ReadResult(atlasDir);
        if (result && IsAccepted(*result)) place = PlaceOfAtlas(*result);
    }
    running_ = false;
    return place;
}

bool AtlasLookup::IsOwn(const std::string& atlasDir) const {
    std::error_code error;
    return atlasDir == ownDirectory_ ||
           std::filesystem::equivalent(FindPath(PathFromText(atlasDir)), ownDirectory_, error);
}

bool AtlasLookup::RunAtlas(std::string& atlasDir) {
    while (true) {
        const ProgramRun run = atlasDir.empty() ? ProgramRun::NotStarted
                                                : run_({FileIn(atlasDir, kAtlasProgram), IsOwn(atlasDir)});
        if (run != ProgramRun::NotStarted) return run == ProgramRun::Ended;
        std::string answer =
            messages_.AskText("Where do I find ATLAS.EXE?",
                              "Enter the complete path for where ATLAS.EXE resides: \r\n\r\n"
                              "(Example: c:\\atlas OR c:\\charts\\atlas OR d:\\windows\\atlas\\)");
        if (answer.empty()) return false;
        if (!answer.ends_with('\\') && !answer.ends_with('/')) answer += '\\';
        atlasDir = std::move(answer);
    }
}

std::optional<AtlasResult> AtlasLookup::ReadResult(const std::string& atlasDir) {
    const auto warn = [&](const std::string& text) { messages_.Tell("Warning!", text, MessageIcon::Stop); };
    const auto path = FirstLines(FileIn(atlasDir, kAtlasPathFile), 1);
    if (!path) {
        warn("Cannot find the file called PCATPATH in the " + atlasDir + " directory.");
        return std::nullopt;
    }
    const std::string& workingDirectory = path->front();
    const auto lines = FirstLines(FileIn(workingDirectory, kAtlasExchangeFile), kExchangeLines);
    if (!lines && IsOwn(atlasDir)) return std::nullopt;  // cancelled
    if (!lines) {
        warn("Cannot find the file called TSRTEMP.TXT in the " + workingDirectory + " directory.");
        return std::nullopt;
    }
    if (const std::string fault = ExchangeFault(*lines); !fault.empty()) {
        warn("The file TSRTEMP.TXT in the " + workingDirectory + " directory cannot be used: " + fault + ".");
        return std::nullopt;
    }
    return AtlasResult{Shortened((*lines)[2]), Shortened((*lines)[1]),
                       static_cast<float>(LeadingNumber((*lines)[4]))};
}

bool AtlasLookup::IsAccepted(const AtlasResult& result) {
    const std::string text = "Accept following data? \r\n\r\nLongitude = " + result.longitude +
                             "\r\nLatitude  = " + result.latitude +
                             "\r\nTime zone = " + ClassicNumberText(result.timeZone);
    return messages_.AskYesNo("Accept or Reject data", text);
}

}  // namespace tolvanis
