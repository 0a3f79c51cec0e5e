#pragma once
// From the rules of a zone to its periods.

#include <map>
#include <string>
#include <vector>

#include "birthdata/zone_history.h"

namespace tolvanis {

using ZoneRuleSets = std::map<std::string, std::vector<ZoneRule>, std::less<>>;

// The periods in order, neighbours that differ in nothing joined, the rules followed to the end of
// `lastYear`. Moments on a wall clock are taken on the clock of the period before, as zic(8) of the tz
// project has it.
std::vector<ZonePeriod> MakeZonePeriods(const std::vector<ZoneEra>& eras, const ZoneRuleSets& rules,
                                        int lastYear);

}  // namespace tolvanis
