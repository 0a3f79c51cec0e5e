#pragma once
// Data that earlier versions copied into users' directories; made by tools/former_data.py.

#include <array>
#include <cstdint>
#include <string_view>

namespace tolvanis {

struct FormerFile {
    std::string_view name;  // in capitals
    std::uintmax_t size;
    std::uint64_t fingerprint;  // FNV-1a of the content
};

inline constexpr std::array<FormerFile, 24> kFormerFiles = {{
    {"ATTRIBUTION.TXT", 2584, 0x007944188e42922b}, {"GEOGRAPH.HLP", 3733, 0xe8c1d3da74a99ad9},
    {"HCDATA.DAT", 527, 0x3f0eab267eb39247},       {"HELPFILE", 58380, 0x9be45cb56c911874},
    {"HINTS.HLP", 3084, 0xf9e0a87a00661cc9},       {"HORARY-BOLD.TTF", 157132, 0x56dd079f70ba285e},
    {"HORARY.TTF", 159280, 0xed97c89e2c333e8e},    {"INPUTD.HLP", 8594, 0x104c2f5d45ec9700},
    {"LONGLAT.HLP", 2103, 0x777093cacda7ce09},     {"NAMEEDIT.HLP", 1933, 0xc648a3ed744a58be},
    {"NAMES.HLP", 3397, 0xecb1bdef75663b59},       {"OPTIONS.HLP", 7677, 0xe39296203c5befcd},
    {"OPTIONS.MAS", 7426, 0xf6e313439fb40195},     {"OUTPUTD1.HLP", 3183, 0x257479679ab76302},
    {"PHILO.HLP", 2359, 0x578397c2a2693450},       {"PRNTFILE.HLP", 1268, 0xb535483d242da070},
    {"RADIUS.DAT", 1805, 0xd685b760fbf59afc},      {"REVISION.HLP", 1709, 0x15268e7921429ad9},
    {"SELECT.HLP", 1471, 0xfc27a15c7ab042d2},      {"SHORTCUT.HLP", 3873, 0xe6dd8399bccfdd2b},
    {"TOLVANIS.HLP", 4894, 0x238cb9a4be1034ab},    {"TZ.DAT", 2759, 0x16db4f22c04cce38},
    {"UPGRADES.HLP", 2834, 0xcb301b412be72698},    {"WHEELS.HLP", 3601, 0xaaae41cc147de956},
}};

}  // namespace tolvanis
