#include "birthdata/cities_file.h"

#include <algorithm>

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

// How a user may name a place.
class WantedCity {
  public:
    explicit WantedCity(std::string_view name)
        : name_(TrimBlanks(name)), nameKey_(SearchKey(name_)), comma_(name_.rfind(',')) {
        if (comma_ == std::string::npos) return;
        cityKey_ = SearchKey(name_.substr(0, comma_));
        regionKey_ = SearchKey(name_.substr(comma_ + 1));
    }

    bool Fits(const CityRecord& record) const {
        const std::string city = SearchKey(record.city);
        if (nameKey_.empty()) return false;
        if (city == nameKey_) return true;
        return comma_ != std::string::npos && city == cityKey_ && SearchKey(record.region) == regionKey_;
    }

    bool FitsWithAccents(const CityRecord& record) const {
        if (EqualIgnoringCase(record.city, name_)) return true;
        return comma_ != std::string::npos &&
               EqualIgnoringCase(record.city, TrimBlanks(std::string_view(name_).substr(0, comma_)));
    }

  private:
    std::string name_;
    std::string nameKey_;
    std::size_t comma_;
    std::string cityKey_;
    std::string regionKey_;
};

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
    const WantedCity wanted(name);
    const RecordList cities = ReadCitiesFile(file);
    std::vector<CityRecord> fitting;
    for (std::size_t i = 0; i < cities.size(); ++i) {
        const Result<CityRecord> record = ParseCityRecord(cities.Line(i));
        if (record && wanted.Fits(*record)) fitting.push_back(*record);
    }
    const auto fitsWithAccents = [&](const CityRecord& record) { return wanted.FitsWithAccents(record); };
    if (std::any_of(fitting.begin(), fitting.end(), fitsWithAccents)) {
        std::erase_if(fitting, std::not_fn(fitsWithAccents));
    }
    if (fitting.empty()) {
        if (cities.fault() && cities.fault()->line == 0) return Fault{cities.fault()->detail};
        if (cities.fault()) {
            return Fault{"line " + std::to_string(cities.fault()->line) + ": " + cities.fault()->detail};
        }
        return Fault{"there is no place \"" + std::string(name) + "\""};
    }
    const std::vector<std::string> regions = RegionsOf(fitting);
    if (regions.size() > 1) return Ambiguous(name, regions);
    return fitting.front();
}

}  // namespace tolvanis
