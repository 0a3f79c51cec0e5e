#pragma once
// The atlas: places of the world with their zones, found by any of their names or by where they lie.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "birthdata/place.h"
#include "birthdata/zone_lookup.h"
#include "platform/result.h"
#include "text/text_list.h"

namespace tolvanis {

inline constexpr std::string_view kAtlasFile = "ATLAS.DAT";

struct AtlasPlace {
    std::string name;
    std::string region;  // names
    std::string country;
    int population = 0;
    ZonePlace place;

    // "Atlanta, Georgia, United States".
    std::string FullName() const;
    // The full name with what tells places of the same name apart: "Florence, New Jersey, United States
    // (74W48 40N07, population 4426)".
    std::string NameAndCoordinates() const;
    // The coordinates as an entry takes them, to the nearest minute.
    Coordinate Longitude() const;
    Coordinate Latitude() const;
    // The place at these coordinates, where local mean time is as an entry has it.
    ZonePlace AsEntered() const;
};

struct FoundPlace {
    std::size_t index = 0;
    bool hasNamesakes = false;  // there are smaller places with the same full name
};

class Atlas {
  public:
    // Reads the delivered file. A fault names file and line.
    static Result<Atlas> Read(const Path& file);

    std::size_t size() const { return rows_.size(); }
    AtlasPlace At(std::size_t index) const;

    // The places that one of whose names is, begins with or has a later word that begins with what was typed,
    // in this order and the biggest first, letter case, accents and punctuation aside. Behind commas may
    // stand region and country or the beginnings of their names or codes.
    std::vector<std::size_t> Search(std::string_view typed, std::size_t most) const;

    // The one place that is meant by "city", "city, region", "city, country" or "city, region, country". Of
    // several with the same full name the one with ten times the people of all others is meant, or that at
    // the coordinates in brackets behind: "Florence, New Jersey (74W48 40N07)". A fault says that there is
    // none, or lists all there are, one a line and the largest first, those of one full name with
    // coordinates.
    Result<FoundPlace> FindOne(std::string_view text) const;

    // The place that a birth at these coordinates most likely belongs to: the nearest one, a city counting
    // from its outskirts. Nothing farther than `mostKm`.
    std::optional<std::size_t> Nearest(double degreesNorth, double degreesEast, double mostKm) const;

    // The places with exactly this name, or one of their other names, within `mostKm`.
    std::optional<std::size_t> Named(std::string_view name, double degreesNorth, double degreesEast,
                                     double mostKm) const;

    // All names of a place as search keys.
    std::vector<std::string_view> KeysOf(std::size_t index) const;

  private:
    friend class AtlasReader;

    struct Row {
        std::uint32_t name = 0;  // where it begins in text_
        std::uint32_t firstKey = 0;
        std::int32_t north = 0;  // hundredths of a minute of arc
        std::int32_t east = 0;
        std::int32_t population = 0;
        std::uint16_t nameLength = 0;
        std::uint16_t zone = 0;
        std::uint16_t region = 0;
    };
    struct Region {
        std::string code;
        std::string name;
        std::vector<std::string> keys;
        std::size_t country = 0;
    };
    struct Country {
        std::string code;
        std::string name;
        std::vector<std::string> keys;
    };
    struct Hit {
        std::uint32_t place;
        std::uint8_t rank;  // 0 the whole main name, 1 another whole name, 2 a beginning, 3 a later word
    };
    class Wanted;

    void SortWords() const;
    void RankPlaces(std::string_view key, bool wholeNames, std::vector<std::uint8_t>& ranks) const;
    std::vector<Hit> HitsOf(const Wanted& wanted, bool wholeNames) const;
    std::vector<Hit> PlacesMeant(std::string_view text) const;
    std::optional<FoundPlace> Outstanding(const std::vector<Hit>& hits) const;
    std::string ListOf(std::vector<Hit> hits) const;
    std::string Elsewhere(std::string_view text) const;
    std::uint32_t PlaceOfKey(std::size_t key) const;
    double Degrees(std::int32_t hundredths) const { return hundredths / 6000.0; }
    void SortIntoCells();
    template <typename Visit>
    void VisitNear(double north, double east, double km, Visit visit) const;

    std::string text_;
    std::vector<Row> rows_;
    std::vector<std::string> zones_;
    std::vector<Region> regions_;
    std::vector<Country> countries_;
    std::string keys_;                     // search keys, a line feed in front of each and behind the last
    std::vector<std::uint32_t> keyStart_;  // of each key, its line feed
    // The words of the keys by their first two letters, sorted at the first search.
    mutable std::vector<std::uint32_t> wordStart_;
    mutable std::vector<std::uint32_t> words_;
    std::vector<std::uint32_t> cellStart_;
    std::vector<std::uint32_t> cellPlaces_;
};

}  // namespace tolvanis
