// Any content as the zone history and as the atlas, with look-ups of what stands in them.

#include "birthdata/atlas.h"
#include "birthdata/zone_lookup.h"
#include "fuzz_support.h"
#include "text/fields.h"

namespace tolvanis {
namespace {

// In every zone that the input names.
void LookUpEverywhere(const ZoneHistory& history, std::string_view input) {
    for (const std::string& line : SplitAt(input, '\n')) {
        const std::vector<std::string> words = SplitAt(line, ' ');
        if (words.size() < 2 || words[0] != "Z") continue;
        const ZonePlace place{words[1], "US", "4", 52.5, 13.4};
        for (const int year : {1800, 1945, 1980, 2026, 2199}) {
            const ClockMoment moment{{year, 5, 24}, 7200};
            for (const ZoneReading& reading : LookUpZone(history, place, moment).readings) {
                Require(!ZoneHoursText(HoursOfOffset(reading.offset)).empty(), "an offset has a text");
            }
            OffsetAtUniversal(history, place, moment);
        }
    }
}

void FindEverything(const Atlas& atlas) {
    for (std::size_t i = 0; i < atlas.size(); ++i) {
        const AtlasPlace place = atlas.At(i);
        static_cast<void>(atlas.Search(place.name, 5));
        static_cast<void>(atlas.FindOne(place.FullName()));
        static_cast<void>(atlas.Nearest(place.place.degreesNorth, place.place.degreesEast, 40.0));
        static_cast<void>(atlas.Named(place.name, place.place.degreesNorth, place.place.degreesEast, 40.0));
        Require(!atlas.KeysOf(i).empty(), "a place has a key");
    }
}

}  // namespace

void Fuzz(std::string_view input) {
    const MemoryFile file(input);
    if (const Result<ZoneHistory> history = ZoneHistory::Read(file.path())) LookUpEverywhere(*history, input);
    if (const Result<Atlas> atlas = Atlas::Read(file.path())) FindEverything(*atlas);
}

}  // namespace tolvanis
