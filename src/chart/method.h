#pragma once
// How a chart is computed.

#include "chart/house_system.h"
#include "chart/options.h"
#include "chart/theory.h"

namespace tolvanis {

struct Method {
    HouseSystem houses = HouseSystem::Placidus;
    Theory theory = Theory::Classic;
};

// The method that options 27 and 26 name.
Method MethodOfOptions(const Options& options);

}  // namespace tolvanis
