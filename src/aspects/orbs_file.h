#pragma once
// The orbs file of the aspect window and of the printed aspect grid.

#include <array>

#include "platform/files.h"
#include "platform/result.h"

namespace tolvanis {

inline constexpr std::string_view kNatalOrbs = "NATAL.ORB";
inline constexpr int kOrbSlotCount = 17;

// Degrees, by the orb slot of an aspect's definition; slot 0 is never filled, slots 6 and 17 are never read.
using OrbTable = std::array<float, kOrbSlotCount + 1>;

// Orbs under which nothing forms an aspect, not even an exact one.
inline OrbTable NoOrbs() {
    OrbTable orbs;
    orbs.fill(-1.0F);
    return orbs;
}

// Line k's number, from its first 7 characters, into slot k, up to the first empty line or the end of the
// file; slots without a line keep their values. A fault names the file and says why it cannot be read or that
// it has more than 17 lines in front of its first empty one; the slots are then undefined.
Result<void> ReadOrbsFile(const Path& path, OrbTable& orbs);

}  // namespace tolvanis
