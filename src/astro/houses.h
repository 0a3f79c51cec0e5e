#pragma once
// The twelve house cusps in nine systems.

#include "astro/time_frame.h"
#include "chart/house_system.h"

namespace tolvanis {

// Cusps in degrees, 0 <= x < 360, for the frame's moment and latitude. All systems but Meridian and Morinus
// are meant for latitudes up to 66 degrees. Placidus runs exactly ten rounds for each intermediate cusp in
// the classic theory; above 56 degrees these have not fully converged (0.5' at 60 degrees, 19' at 66). In the
// modern theory it runs until they have. Sources: the pole and semi-arc formulas of Holden, The Elements of
// House Division (1977); Koch by its ascensional differences.
HouseCusps ComputeHouseCusps(HouseSystem system, const TimeFrame& frame);

}  // namespace tolvanis
