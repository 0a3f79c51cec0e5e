// Any content as each of the smaller files: cities, time zones, orbs, settings, and a text open in an editor.

#include "app/editor_file.h"
#include "app/settings_file.h"
#include "aspects/orbs_file.h"
#include "birthdata/cities_file.h"
#include "birthdata/time_zone_table.h"
#include "fuzz_support.h"
#include "platform/clock.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

void ReadCities(const Path& path) {
    const RecordList cities = ReadCitiesFile(path);
    for (std::size_t i = 0; i < cities.size(); ++i) {
        const std::string text = CityTextAt(cities, i);
        const auto city = FindCityText(cities, text);
        if (city) OnClockOfZone(HostClock(), LeadingNumber(PlaceOfCity(*city).timeZone));
    }
    if (cities.size() > 0) static_cast<void>(FindCity(path, CityTextAt(cities, 0)));
}

void ReadZones(const Path& path) {
    const RecordList zones = ReadTimeZones(path);
    for (std::size_t i = 0; i < zones.size(); ++i) {
        static_cast<void>(ChooseTimeZone(zones, TimeZoneLineAt(zones, i)));
    }
}

void ReadSettingsLines(std::string_view input) {
    Settings settings = DefaultSettings("/home/ann");
    LineReader lines = LineReader::OfText(input);
    for (std::string line; lines.Next(line);) ApplySettingsLine(line, settings);
    Settings again = DefaultSettings("/home/ann");
    const std::string text = SettingsText(settings);
    LineReader written = LineReader::OfText(text);
    for (std::string line; written.Next(line);) ApplySettingsLine(line, again);
    Require(SettingsText(again) == text, "settings read back as they were written");
}

void EditText(const Path& path, std::string_view input) {
    EditorFile file(path);
    const Result<std::string> text = file.Read();
    if (!text) return;
    std::string again;
    LineReader lines = LineReader::OfText(*text);
    for (std::string line; lines.Next(line);) again.append(line).append("\r\n");
    Require(again == *text, "what an editor shows reads back as it is");
    static_cast<void>(ChangesBetween(*text, input));
}

}  // namespace

void Fuzz(std::string_view input) {
    const MemoryFile file(input);
    ReadCities(file.path());
    ReadZones(file.path());
    OrbTable orbs{};
    static_cast<void>(ReadOrbsFile(file.path(), orbs));
    ReadSettingsLines(input);
    EditText(file.path(), input);
}

}  // namespace tolvanis
