#include "birthdata/atlas.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>

#include "text/columns.h"
#include "text/fields.h"
#include "text/numbers.h"
#include "text/search_key.h"

namespace tolvanis {
namespace {

constexpr int kCellsRound = 360;  // cells of one degree
constexpr int kCells = kCellsRound * 180;
constexpr double kKmPerDegree = 111.2;
constexpr std::size_t kMostListed = 100;
constexpr double kKmOfOneTown = 10.0;
constexpr std::int64_t kTimesTheOthers = 10;

constexpr std::size_t kLetters = 38;  // A to Z, 0 to 9, the end of a word, all others
constexpr std::size_t kDrawers = kLetters * kLetters;

std::size_t LetterNumber(char letter) {
    if (letter >= 'A' && letter <= 'Z') return static_cast<std::size_t>(letter - 'A');
    if (letter >= '0' && letter <= '9') return static_cast<std::size_t>(letter - '0') + 26;
    return letter == ' ' || letter == '\n' ? 36 : 37;
}

std::size_t DrawerOf(char first, char second) {
    return LetterNumber(first) * kLetters + LetterNumber(second);
}

std::size_t CellOf(double north, double east) {
    const int row = std::clamp(static_cast<int>(std::floor(north)) + 90, 0, 179);
    const int column = (static_cast<int>(std::floor(east)) % kCellsRound + kCellsRound) % kCellsRound;
    return static_cast<std::size_t>(row * kCellsRound + column);
}

// How far a city's own ground reaches, roughly.
double OutskirtsKm(int population) {
    return std::min(30.0, 0.015 * std::sqrt(static_cast<double>(population)));
}

std::string NoPlace(std::string_view text) {
    return "there is no place \"" + std::string(text) + "\" in the atlas";
}

// Longitude and latitude that a user has typed, in whole minutes.
struct TypedCoordinates {
    double longitude = 0.0;
    double latitude = 0.0;

    bool AreOf(const AtlasPlace& place) const {
        return DegreesOf(place.Longitude()) == longitude && DegreesOf(place.Latitude()) == latitude;
    }
};

// The degrees of a coordinate such as 074W48.
std::optional<double> TypedDegrees(std::string_view text, const CoordinateForm& form) {
    const std::string upper = UpperCase(text);
    const auto parts = SplitCoordinate(upper, form);
    if (!parts) return std::nullopt;
    const auto degrees = WholeNumberIn(std::string(parts->degrees), 0, form.mostDegrees);
    const auto minutes = WholeNumberIn(std::string(parts->minutes), 0, 59);
    if (!degrees || !minutes) return std::nullopt;
    return DegreesOf(CoordinateOf(parts->degrees, parts->minutes, parts->negative));
}

// Longitude and latitude in either order, up to a comma.
std::optional<TypedCoordinates> ReadCoordinates(std::string_view text) {
    const std::string both(TrimBlanks(text.substr(0, text.find(','))));
    const std::size_t blank = both.find(' ');
    if (blank == std::string::npos) return std::nullopt;
    const std::string one = both.substr(0, blank), other(TrimBlanks(both.substr(blank)));
    for (const auto& [first, second] : {std::pair(one, other), std::pair(other, one)}) {
        const auto longitude = TypedDegrees(first, kLongitudeForm);
        const auto latitude = TypedDegrees(second, kLatitudeForm);
        if (longitude && latitude) return TypedCoordinates{*longitude, *latitude};
    }
    return std::nullopt;
}

// A name and the coordinates in brackets behind it; other brackets belong to the name.
std::pair<std::string_view, std::optional<TypedCoordinates>> SplitOffCoordinates(std::string_view text) {
    const std::size_t open = text.rfind('('), close = text.rfind(')');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open)
        return {text, std::nullopt};
    const auto coordinates = ReadCoordinates(text.substr(open + 1, close - open - 1));
    return {coordinates ? text.substr(0, open) : text, coordinates};
}

Coordinate CoordinateInMinutes(double degrees, bool negative) {
    const long minutes = std::lround(std::abs(degrees) * 60.0);
    return {NumberText(static_cast<double>(minutes / 60)), NumberText(static_cast<double>(minutes % 60)),
            negative};
}

}  // namespace

// What a user has typed: a place, and region and country behind commas.
class Atlas::Wanted {
  public:
    Wanted(std::string_view typed, bool beginnings) : beginnings_(beginnings) {
        for (const std::string& part : SplitAt(typed, ',')) {
            if (std::string key = SearchKey(part); !key.empty()) qualifiers_.push_back(std::move(key));
        }
        if (qualifiers_.empty()) return;
        spellings_ = KeySpellings(qualifiers_.front());
        qualifiers_.erase(qualifiers_.begin());
    }

    const std::vector<std::string>& spellings() const { return spellings_; }

    // One qualifier is a region or a country; of two the second is the country.
    bool Fits(const Region& region, const Country& country) const {
        if (qualifiers_.empty()) return true;
        if (qualifiers_.size() == 1) {
            return Holds(region.keys, qualifiers_[0]) || Holds(country.keys, qualifiers_[0]);
        }
        return qualifiers_.size() == 2 && Holds(region.keys, qualifiers_[0]) &&
               Holds(country.keys, qualifiers_[1]);
    }

  private:
    bool Holds(const std::vector<std::string>& keys, const std::string& wanted) const {
        return std::ranges::any_of(keys, [&](const std::string& key) {
            return beginnings_ ? key.starts_with(wanted) : key == wanted;
        });
    }

    bool beginnings_;
    std::vector<std::string> spellings_;
    std::vector<std::string> qualifiers_;
};

std::string AtlasPlace::FullName() const {
    return name + (region.empty() ? "" : ", " + region) + ", " + country;
}

std::string AtlasPlace::NameAndCoordinates() const {
    return FullName() + " (" + CoordinateText(Longitude(), kLongitudeForm) + " " +
           CoordinateText(Latitude(), kLatitudeForm) + ", population " + std::to_string(population) + ")";
}

Coordinate AtlasPlace::Longitude() const {
    return CoordinateInMinutes(place.degreesEast, place.degreesEast > 0.0);
}

Coordinate AtlasPlace::Latitude() const {
    return CoordinateInMinutes(place.degreesNorth, place.degreesNorth < 0.0);
}

ZonePlace AtlasPlace::AsEntered() const {
    ZonePlace entered = place;
    entered.degreesEast = -DegreesOf(Longitude());
    entered.degreesNorth = DegreesOf(Latitude());
    return entered;
}

AtlasPlace Atlas::At(std::size_t index) const {
    const Row& row = rows_[index];
    const Region& region = regions_[row.region];
    const Country& country = countries_[region.country];
    return {text_.substr(row.name, row.nameLength),
            region.name,
            country.name,
            row.population,
            {zones_[row.zone], country.code, region.code, Degrees(row.north), Degrees(row.east)}};
}

std::uint32_t Atlas::PlaceOfKey(std::size_t key) const {
    const auto above = std::ranges::upper_bound(rows_, key, {}, &Row::firstKey);
    return static_cast<std::uint32_t>(above - rows_.begin() - 1);
}

// Puts every word of the keys into the drawer of its first two letters.
void Atlas::SortWords() const {
    std::vector<std::uint32_t> words;
    words.reserve(keyStart_.size() * 2);
    for (std::uint32_t at = 0; at + 2 < keys_.size(); ++at) {
        if (keys_[at] == '\n' || keys_[at] == ' ') words.push_back(at + 1);
    }
    wordStart_.assign(kDrawers + 1, 0);
    for (const std::uint32_t word : words) ++wordStart_[DrawerOf(keys_[word], keys_[word + 1]) + 1];
    for (std::size_t i = 1; i < wordStart_.size(); ++i) wordStart_[i] += wordStart_[i - 1];
    words_.resize(words.size());
    std::vector<std::uint32_t> next(wordStart_.begin(), wordStart_.end() - 1);
    for (const std::uint32_t word : words) words_[next[DrawerOf(keys_[word], keys_[word + 1])]++] = word;
}

// Notes the best rank of every place with a key that begins with this one, whole or in a word.
void Atlas::RankPlaces(std::string_view key, bool wholeNames, std::vector<std::uint8_t>& ranks) const {
    const std::string_view keys = keys_;
    const std::size_t drawer = DrawerOf(key[0], key.size() > 1 ? key[1] : '\n');
    for (std::uint32_t i = wordStart_[drawer]; i < wordStart_[drawer + 1]; ++i) {
        const std::size_t at = words_[i];
        if (keys.substr(at, key.size()) != key) continue;
        const bool isName = keys[at - 1] == '\n';
        const bool whole = isName && keys[at + key.size()] == '\n';
        if (wholeNames && !whole) continue;
        const auto start = std::ranges::upper_bound(keyStart_, at - 1) - 1;
        const auto number = static_cast<std::size_t>(start - keyStart_.begin());
        const std::uint32_t place = PlaceOfKey(number);
        const bool main = rows_[place].firstKey == number;
        const int rank = !isName ? 3 : !whole ? 2 : main ? 0 : 1;
        ranks[place] = std::min(ranks[place], static_cast<std::uint8_t>(rank));
    }
}

// The fitting places, each once with its best rank. A single letter stands for a whole name.
std::vector<Atlas::Hit> Atlas::HitsOf(const Wanted& wanted, bool wholeNames) const {
    constexpr std::uint8_t kNoRank = 255;
    if (words_.empty()) SortWords();
    std::vector<std::uint8_t> ranks(rows_.size(), kNoRank);
    for (const std::string& spelling : wanted.spellings()) {
        RankPlaces(spelling, wholeNames || spelling.size() < 2, ranks);
    }
    std::vector<Hit> hits;
    for (std::uint32_t place = 0; place < ranks.size(); ++place) {
        if (ranks[place] == kNoRank) continue;
        const Region& region = regions_[rows_[place].region];
        if (wanted.Fits(region, countries_[region.country])) hits.push_back({place, ranks[place]});
    }
    return hits;
}

std::vector<std::size_t> Atlas::Search(std::string_view typed, std::size_t most) const {
    std::vector<Hit> hits = HitsOf(Wanted(typed, true), false);
    // A whole name goes first whether it is the first or another one: Wien is Vienna.
    const auto order = [&](const Hit& hit) {
        return std::tuple(std::max<int>(hit.rank, 1), -rows_[hit.place].population, hit.place);
    };
    const auto end = hits.begin() + static_cast<std::ptrdiff_t>(std::min(most, hits.size()));
    std::ranges::partial_sort(hits, end, {}, order);
    std::vector<std::size_t> found;
    for (auto hit = hits.begin(); hit != end; ++hit) found.push_back(hit->place);
    return found;
}

// The places that a name without coordinates can mean, the best first.
std::vector<Atlas::Hit> Atlas::PlacesMeant(std::string_view text) const {
    std::vector<Hit> hits = HitsOf(Wanted(text, false), true);
    if (hits.empty()) return hits;
    std::ranges::sort(hits, {}, [&](const Hit& hit) {
        return std::tuple(hit.rank, -rows_[hit.place].population, hit.place);
    });
    // Another name counts only where its place is larger than the one that bears the name itself.
    const Hit best = hits.front();
    const auto isSmaller = [&](const Hit& hit) {
        return hit.rank > 0 && rows_[hit.place].population <= rows_[best.place].population;
    };
    if (best.rank == 0) std::erase_if(hits, isSmaller);
    // Quarters of one town, and a town's second entry, are no other place.
    const AtlasPlace first = At(hits.front().place);
    std::erase_if(hits, [&](const Hit& hit) {
        const AtlasPlace other = At(hit.place);
        const double km = DistanceKm(first.place.degreesNorth, first.place.degreesEast,
                                     other.place.degreesNorth, other.place.degreesEast);
        return hit.place != hits.front().place && km < kKmOfOneTown + OutskirtsKm(first.population);
    });
    return hits;
}

// The place among several of one full name that nobody means another one by.
std::optional<FoundPlace> Atlas::Outstanding(const std::vector<Hit>& hits) const {
    const auto peopleOf = [&](const Hit& hit) { return std::int64_t{rows_[hit.place].population}; };
    const Hit largest = *std::ranges::max_element(hits, {}, peopleOf);
    const std::string name = At(largest.place).FullName();
    std::int64_t others = -peopleOf(largest);
    for (const Hit& hit : hits) {
        if (At(hit.place).FullName() != name) return std::nullopt;
        others += peopleOf(hit);
    }
    if (peopleOf(largest) < kTimesTheOthers * std::max<std::int64_t>(others, 1)) return std::nullopt;
    return FoundPlace{largest.place, hits.size() > 1};
}

Result<FoundPlace> Atlas::FindOne(std::string_view text) const {
    const auto [name, coordinates] = SplitOffCoordinates(text);
    const std::vector<Hit> hits = coordinates ? HitsOf(Wanted(name, false), true) : PlacesMeant(name);
    if (hits.empty()) return Fault{NoPlace(text) + Elsewhere(name)};
    if (coordinates) {
        const auto isThere = [&, &wanted = *coordinates](const Hit& hit) {
            return wanted.AreOf(At(hit.place));
        };
        const auto there = std::ranges::find_if(hits, isThere);
        if (there != hits.end()) return FoundPlace{there->place, false};
        return Fault{NoPlace(text) + "; elsewhere:" + ListOf(hits)};
    }
    if (hits.size() == 1) return FoundPlace{hits.front().place, false};
    if (const auto outstanding = Outstanding(hits)) return *outstanding;
    return Fault{"there are several places \"" + std::string(text) + "\":" + ListOf(hits)};
}

// The largest first; those of one full name with their coordinates.
std::string Atlas::ListOf(std::vector<Hit> hits) const {
    std::ranges::stable_sort(hits, {}, [&](const Hit& hit) { return -rows_[hit.place].population; });
    std::map<std::string, int> count;
    for (const Hit& hit : hits) ++count[At(hit.place).FullName()];
    std::string list;
    for (std::size_t i = 0; i < std::min(hits.size(), kMostListed); ++i) {
        const AtlasPlace place = At(hits[i].place);
        const std::string name = place.FullName();
        list += "\n  " + (count[name] > 1 ? place.NameAndCoordinates() : name);
    }
    if (hits.size() > kMostListed) list += "\n  and " + std::to_string(hits.size() - kMostListed) + " more";
    return list;
}

// The places of the name wherever they are: towns have changed their countries.
std::string Atlas::Elsewhere(std::string_view text) const {
    const std::size_t comma = text.find(',');
    if (comma == std::string_view::npos) return {};
    const std::vector<Hit> hits = HitsOf(Wanted(text.substr(0, comma), false), true);
    return hits.empty() ? std::string() : "; elsewhere:" + ListOf(hits);
}

void Atlas::SortIntoCells() {
    cellStart_.assign(kCells + 1, 0);
    const auto cellOf = [&](const Row& row) { return CellOf(Degrees(row.north), Degrees(row.east)); };
    for (const Row& row : rows_) ++cellStart_[cellOf(row) + 1];
    for (std::size_t cell = 1; cell < cellStart_.size(); ++cell) cellStart_[cell] += cellStart_[cell - 1];
    cellPlaces_.resize(rows_.size());
    std::vector<std::uint32_t> next(cellStart_.begin(), cellStart_.end() - 1);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        cellPlaces_[next[cellOf(rows_[i])]++] = static_cast<std::uint32_t>(i);
    }
}

// Calls visit(place, distance) for every place within so many kilometres.
template <typename Visit>
void Atlas::VisitNear(double north, double east, double km, Visit visit) const {
    const double reach = km / kKmPerDegree;
    const double narrowest = std::cos(std::min(89.0, std::abs(north) + reach) * std::numbers::pi / 180.0);
    const double reachEast = std::min(180.0, reach / narrowest);
    const int columns = std::min(kCellsRound, static_cast<int>(2.0 * reachEast) + 2);
    for (double row = std::floor(north - reach); row <= north + reach; ++row) {
        for (int column = 0; column < columns; ++column) {
            const std::size_t cell = CellOf(row, east - reachEast + column);
            for (std::uint32_t i = cellStart_[cell]; i < cellStart_[cell + 1]; ++i) {
                const Row& place = rows_[cellPlaces_[i]];
                const double eastward = std::abs(Degrees(place.east) - east);
                const bool far = std::abs(Degrees(place.north) - north) > reach ||
                                 std::min(eastward, 360.0 - eastward) > reachEast;
                if (far) continue;
                const double distance = DistanceKm(north, east, Degrees(place.north), Degrees(place.east));
                if (distance <= km) visit(std::size_t{cellPlaces_[i]}, distance);
            }
        }
    }
}

std::optional<std::size_t> Atlas::Nearest(double degreesNorth, double degreesEast, double mostKm) const {
    std::optional<std::size_t> nearest;
    double least = mostKm;
    VisitNear(degreesNorth, degreesEast, mostKm, [&](std::size_t place, double distance) {
        const double effective = distance - OutskirtsKm(rows_[place].population);
        if (effective >= least) return;
        least = effective;
        nearest = place;
    });
    return nearest;
}

std::optional<std::size_t> Atlas::Named(std::string_view name, double degreesNorth, double degreesEast,
                                        double mostKm) const {
    const std::string key = SearchKey(name);
    std::optional<std::size_t> found;
    double least = mostKm;
    VisitNear(degreesNorth, degreesEast, mostKm, [&](std::size_t place, double distance) {
        const std::vector<std::string_view> keys = KeysOf(place);
        if (distance > least || std::ranges::find(keys, key) == keys.end()) return;
        least = distance;
        found = place;
    });
    return found;
}

std::vector<std::string_view> Atlas::KeysOf(std::size_t index) const {
    const std::size_t end = index + 1 < rows_.size() ? rows_[index + 1].firstKey : keyStart_.size();
    std::vector<std::string_view> keys;
    for (std::size_t key = rows_[index].firstKey; key < end; ++key) {
        const std::size_t start = keyStart_[key] + 1;
        keys.push_back(std::string_view(keys_).substr(start, keys_.find('\n', start) - start));
    }
    return keys;
}

}  // namespace tolvanis
