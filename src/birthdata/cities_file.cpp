#include "birthdata/cities_file.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "text/columns.h"
#include "text/fields.h"
#include "text/numbers.h"
#include "text/search_key.h"

namespace tolvanis {
namespace {

constexpr std::size_t kFieldCount = 5;
constexpr std::size_t kShortLongitude = 5;
constexpr std::size_t kLatitudeLength = 5;

std::string FaultOfLine(std::string_view line) {
    const Result<CityRecord> record = ParseCityRecord(line);
    return record ? std::string() : record.message();
}

// `digits` of degrees, the direction letter, and minutes in the last two characters.
Coordinate ReadCoordinate(std::string_view text, std::size_t digits, char negativeLetter) {
    const bool negative = text.size() > digits && text[digits] == negativeLetter;
    const std::string_view minutes = text.substr(text.size() - std::min<std::size_t>(2, text.size()));
    return CoordinateOf(text.substr(0, digits), minutes, negative);
}

// Whether a text is digits for degrees, the letter, and two digits for minutes.
bool IsCoordinate(std::string_view text, const CoordinateForm& form) {
    const auto parts = SplitCoordinate(text, form);
    const auto isDigits = [](std::string_view part) {
        return !part.empty() && part.find_first_not_of("0123456789") == std::string_view::npos;
    };
    return parts && isDigits(parts->degrees) && isDigits(parts->minutes) && parts->minutes.size() == 2 &&
           IsWithin(*parts, form);
}

// How a record fits the name of a place: not at all, by another spelling as St. Louis for Saint Louis, but
// for its accents, or letter for letter.
enum class Fit { None, Spelling, Letters, Accents };

// A name as a user may give it, without a region and, where it has a comma, with one.
class WantedCity {
  public:
    explicit WantedCity(std::string_view name) : names_{Name(TrimBlanks(name), {})} {
        const std::size_t comma = name.rfind(',');
        if (comma != std::string_view::npos)
            names_.emplace_back(TrimBlanks(name.substr(0, comma)), SearchKey(name.substr(comma + 1)));
    }

    Fit FitOf(const CityRecord& record) const {
        Fit best = Fit::None;
        for (const Name& name : names_) best = std::max(best, name.FitOf(record));
        return best;
    }

  private:
    struct Name {
        Name(std::string_view typed, std::string ofRegion)
            : city(typed), spellings(KeySpellings(SearchKey(typed))), region(std::move(ofRegion)) {}

        Fit FitOf(const CityRecord& record) const {
            const std::string key = SearchKey(record.city);
            const auto spelling = std::ranges::find(spellings, key);
            if (key.empty() || spelling == spellings.end()) return Fit::None;
            if (!region.empty() && SearchKey(record.region) != region) return Fit::None;
            if (spelling != spellings.begin()) return Fit::Spelling;
            return EqualIgnoringCase(record.city, city) ? Fit::Accents : Fit::Letters;
        }

        std::string city;
        std::vector<std::string> spellings;
        std::string region;  // as a search key, or empty
    };

    std::vector<Name> names_;
};

// The records that fit, the best first. Accents tell those of one spelling apart.
std::vector<CityRecord> Fitting(const RecordList& cities, const WantedCity& wanted) {
    std::vector<std::pair<Fit, CityRecord>> fitting;
    for (std::size_t i = 0; i < cities.size(); ++i) {
        const Result<CityRecord> record = ParseCityRecord(cities.Line(i));
        const Fit fit = record ? wanted.FitOf(*record) : Fit::None;
        if (fit != Fit::None) fitting.emplace_back(fit, *record);
    }
    std::ranges::stable_sort(fitting, std::greater(), [](const auto& one) { return one.first; });
    if (!fitting.empty() && fitting.front().first == Fit::Accents)
        std::erase_if(fitting, [](const auto& one) { return one.first == Fit::Letters; });
    std::vector<CityRecord> records;
    for (auto& [fit, record] : fitting) records.push_back(std::move(record));
    return records;
}

std::vector<std::string> RegionsOf(const std::vector<CityRecord>& records) {
    std::vector<std::string> regions;
    for (const CityRecord& record : records) {
        if (std::find(regions.begin(), regions.end(), record.region) == regions.end()) {
            regions.push_back(record.region);
        }
    }
    return regions;
}

Fault Ambiguous(std::string_view name, const std::vector<std::string>& regions) {
    std::string text =
        "there are several places \"" + std::string(name) + "\"; add the region after a comma: ";
    for (const std::string& region : regions) text.append(region).append(", ");
    text.resize(text.size() - 2);
    return {text};
}

}  // namespace

Result<CityRecord> ParseCityRecord(std::string_view line) {
    const std::vector<std::string> fields = SplitFields(line);
    if (fields.size() != kFieldCount) {
        return Fault{"the record has " + WrongFieldCount(fields.size(), kFieldCount)};
    }
    return CityRecord{fields[0], fields[1], fields[2], fields[3], fields[4]};
}

std::string CityRecordFault(const CityRecord& record) {
    const std::string& longitude = record.longitude;
    const bool knownLength = longitude.size() == kShortLongitude || longitude.size() == kShortLongitude + 1;
    if (!knownLength || !IsCoordinate(longitude, kLongitudeForm))
        return "\"" + longitude + "\" is no longitude of the form 084W23";
    if (record.latitude.size() != kLatitudeLength || !IsCoordinate(record.latitude, kLatitudeForm))
        return "\"" + record.latitude + "\" is no latitude of the form 33N45";
    if (!EntireNumber(record.timeZone)) return "\"" + record.timeZone + "\" is no time zone in hours";
    return {};
}

Place PlaceOfCity(const CityRecord& record) {
    const std::size_t degreeDigits = record.longitude.size() == kShortLongitude ? 2 : 3;
    return {ReadCoordinate(record.longitude, degreeDigits, 'E'), ReadCoordinate(record.latitude, 2, 'S'),
            NumberText(LeadingNumber(record.timeZone))};
}

RecordList ReadCitiesFile(const Path& path) {
    return RecordList(path, FaultOfLine);
}

void TellCitiesFault(const RecordFault& fault, Messages& messages) {
    TellRecordFault(fault, {"cities", "Cities"}, messages);
}

std::string CityTextAt(const RecordList& cities, std::size_t index) {
    const Result<CityRecord> record = ParseCityRecord(cities.Line(index));
    return record ? record->ListText() : std::string();
}

std::optional<CityRecord> FindCityText(const RecordList& cities, std::string_view text) {
    for (std::size_t i = 0; i < cities.size(); ++i) {
        if (CityTextAt(cities, i) == text) return *ParseCityRecord(cities.Line(i));
    }
    return std::nullopt;
}

Result<CityRecord> FindCity(const Path& file, std::string_view name) {
    const RecordList cities = ReadCitiesFile(file);
    const std::vector<CityRecord> fitting = Fitting(cities, WantedCity(name));
    if (fitting.empty()) {
        if (cities.fault() && cities.fault()->line == 0) return Fault{cities.fault()->detail};
        if (cities.fault()) {
            return Fault{"line " + std::to_string(cities.fault()->line) + ": " + cities.fault()->detail};
        }
        return Fault{"there is no place \"" + std::string(name) + "\"; --at finds those of the atlas"};
    }
    const std::vector<std::string> regions = RegionsOf(fitting);
    if (regions.size() > 1) return Ambiguous(name, regions);
    return fitting.front();
}

}  // namespace tolvanis
