#include "chart/house_system.h"

#include "text/columns.h"

namespace tolvanis {
namespace {

constexpr std::string_view kOrdinals = "10TH11TH12TH 1ST 2ND 3RD 4TH 5TH 6TH 7TH 8TH 9TH    ";

const HouseSystemInfo& Info(HouseSystem system) {
    return kHouseSystems[static_cast<std::size_t>(system)];
}

}  // namespace

std::string_view HouseSystemCode(HouseSystem system) {
    return Info(system).code;
}

std::string_view HouseSystemName(HouseSystem system) {
    return Info(system).name;
}

std::optional<HouseSystem> HouseSystemOfCode(std::string_view code) {
    for (const HouseSystemInfo& info : kHouseSystems) {
        if (EqualIgnoringCase(info.code, code)) return info.system;
    }
    return std::nullopt;
}

HouseSystem HouseSystemOfOption(float option) {
    for (std::size_t i = 0; i < kHouseSystems.size(); ++i) {
        if (option == static_cast<float>(i + 1)) return kHouseSystems[i].system;
    }
    return HouseSystem::Placidus;
}

bool NeedsModerateLatitude(HouseSystem system) {
    return system != HouseSystem::Meridian && system != HouseSystem::Morinus;
}

std::string_view HouseOrdinal(int position) {
    return kOrdinals.substr(static_cast<std::size_t>(position - 1) * 4, 4);
}

}  // namespace tolvanis
