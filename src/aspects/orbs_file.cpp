#include "aspects/orbs_file.h"

namespace tolvanis {

Result<void> ReadOrbsFile(const Path& path, OrbTable& orbs) {
    const Result<int> lines = ReadNumberLines(path, orbs);
    if (!lines) return lines.fault();
    if (*lines > kOrbSlotCount) {
        return Fault{path.string() + " has " + std::to_string(*lines) +
                     " lines of orbs; an orbs file has at most " + std::to_string(kOrbSlotCount) + "."};
    }
    return {};
}

}  // namespace tolvanis
