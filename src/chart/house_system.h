#pragma once
// The nine house systems and the order in which cusps are listed.

#include <array>
#include <optional>
#include <string_view>

namespace tolvanis {

enum class HouseSystem {
    Placidus,
    Regiomontanus,
    Koch,
    Campanus,
    Porphyry,
    EqualAsc,
    EqualMC,
    Meridian,
    Morinus
};

struct HouseSystemInfo {
    HouseSystem system;
    std::string_view code;  // as given on the command line and kept in the birth data
    std::string_view name;  // as printed
};

// In the order of the menu; entry n - 1 is the system that option 27 names by n.
inline constexpr std::array<HouseSystemInfo, 9> kHouseSystems = {{
    {HouseSystem::Placidus, "P", "Placidus"},
    {HouseSystem::Regiomontanus, "R", "Regiomontanus"},
    {HouseSystem::Koch, "K", "Koch"},
    {HouseSystem::Campanus, "C", "Campanus"},
    {HouseSystem::Porphyry, "O", "Porphyry"},
    {HouseSystem::EqualAsc, "EA", "Equal - Ascendant"},
    {HouseSystem::EqualMC, "EM", "Equal - MC"},
    {HouseSystem::Meridian, "M", "Meridian"},
    {HouseSystem::Morinus, "I", "Morinus"},
}};

std::string_view HouseSystemCode(HouseSystem system);
std::string_view HouseSystemName(HouseSystem system);
std::optional<HouseSystem> HouseSystemOfCode(std::string_view code);  // codes in either letter case

// The system that a number of the options file names: 1 Placidus ... 9 Morinus, Placidus for any other.
HouseSystem HouseSystemOfOption(float option);

// Whether cusps of the system lose their meaning beyond the polar circles (all but Meridian and Morinus).
bool NeedsModerateLatitude(HouseSystem system);

// Twelve cusp longitudes in degrees in listing order, tenth house first.
class HouseCusps {
  public:
    // Listing position 1 to 12: 1 is the 10th house, 2 the 11th, 3 the 12th, 4 the 1st ... 12 the 9th.
    double& operator[](int position) { return cusps_[static_cast<std::size_t>(position - 1)]; }
    double operator[](int position) const { return cusps_[static_cast<std::size_t>(position - 1)]; }

    static constexpr int PositionOfHouse(int house) { return house >= 10 ? house - 9 : house + 3; }
    static constexpr int HouseOfPosition(int position) { return position <= 3 ? position + 9 : position - 3; }
    double OfHouse(int house) const { return (*this)[PositionOfHouse(house)]; }
    void SetHouse(int house, double longitude) { (*this)[PositionOfHouse(house)] = longitude; }

    friend bool operator==(const HouseCusps&, const HouseCusps&) = default;

  private:
    std::array<double, 12> cusps_{};
};

// The four-character ordinal of a listing position: "10TH", " 1ST".
std::string_view HouseOrdinal(int position);

}  // namespace tolvanis
