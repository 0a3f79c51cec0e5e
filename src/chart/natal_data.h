#pragma once
// The birth data of the person being charted.

#include <cstdint>
#include <string>

#include "chart/house_system.h"
#include "chart/theory.h"

namespace tolvanis {

// Angles and the clock time are packed: whole units plus sixtieths / 100 (40 deg 45 min is 40.45).
struct NatalData {
    std::string Name;
    std::int16_t Day = 0;
    std::int16_t Month = 0;
    std::int16_t Year = 0;
    std::string DateText;    // as typed, in the system's date order, joined by "/"
    double ClockTime = 0.0;  // packed hours on the 12-hour dial, hour 1 to 12
    std::string AmPm = "A.M.";
    double TimeZone = 0.0;   // decimal hours to add to reach Universal Time: west positive
    float Longitude = 0.0F;  // packed degrees, west positive
    std::string LongitudeSide = "WEST";
    float Latitude = 0.0F;  // packed degrees, north positive
    std::string LatitudeSide = "NORTH";
    tolvanis::HouseSystem HouseSystem = tolvanis::HouseSystem::Placidus;
    tolvanis::Theory Theory = tolvanis::Theory::Classic;
};

}  // namespace tolvanis
