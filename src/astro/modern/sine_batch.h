#pragma once
// Sines and cosines of many angles at once.

#include <array>
#include <cstddef>

namespace tolvanis::modern {

// Room for the arguments of a stretch of a series.
inline constexpr std::size_t kBatch = 256;
using Batch = std::array<double, kBatch>;

// The sines and cosines of the first `count` angles (radians, below 6e7 in size), true to 5e-16 and the same
// in every build. `count` is at most kBatch; it is taken up to the next multiple of four.
void SinesAndCosines(const Batch& angles, std::size_t count, Batch& sines, Batch& cosines);

}  // namespace tolvanis::modern
