#pragma once
// Cities files: places with their longitude, latitude and standard time zone, one record a line.

#include <optional>

#include "birthdata/place.h"
#include "birthdata/record_list.h"
#include "platform/messages.h"
#include "platform/result.h"

namespace tolvanis {

inline constexpr std::string_view kDefaultCitiesFile = "GA_MA.LL";

struct CityRecord {
    std::string city;
    std::string region;     // state, province or country
    std::string longitude;  // degrees, direction letter, two digits of minutes: 84W23
    std::string latitude;   // 33N45
    std::string timeZone;   // decimal hours, west positive

    std::string ListText() const { return city + "," + region; }
};

// The record of a line. A fault says how many fields there are instead of five.
Result<CityRecord> ParseCityRecord(std::string_view line);

// What is wrong with coordinates or zone of a record, or an empty text: a longitude is two or three digits, W
// or E and two digits, a latitude two digits, N or S and two digits, the zone a number.
std::string CityRecordFault(const CityRecord& record);

// The place of a record, whatever it holds. A longitude of five characters has two digits of degrees, any
// other is read as three digits, the letter and, at its end, two digits; "E" is east and "S" south, any other
// letter west or north.
Place PlaceOfCity(const CityRecord& record);

// The readable records of a cities file, in file order.
RecordList ReadCitiesFile(const Path& path);

// Tells the user that a cities file could not be read, or not to its end.
void TellCitiesFault(const RecordFault& fault, Messages& messages);

// City and region with a comma between them.
std::string CityTextAt(const RecordList& cities, std::size_t index);

// The first record with this list text.
std::optional<CityRecord> FindCityText(const RecordList& cities, std::string_view text);

// The record of a place named as "city" or "city,region", letter case, accents, punctuation and the spellings
// of KeySpellings aside. A name that fits with its accents goes before one that fits without, and of several
// records of one region the best fit, then the first, is taken. A fault says that there is no such place, or
// lists the regions that have one, whatever their spelling.
Result<CityRecord> FindCity(const Path& file, std::string_view name);

}  // namespace tolvanis
