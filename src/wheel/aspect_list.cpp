#include "wheel/aspect_list.h"

#include <algorithm>
#include <cmath>

#include "wheel/symbols.h"

namespace tolvanis {
namespace {

constexpr std::array kListSearch = {kSextile,    kSquare,       kTrine,      kOpposition,   kSemiSextile,
                                    kSemiSquare, kSesquisquare, kQuincunx,   kSemiQuintile, kNonagen,
                                    kQuintile,   kTrecile,      kBiQuintile, kSeptile,      kConjunction};

double Exactness(const AspectMatch& match, const OrbTable& orbs) {
    const double orb = double{orbs[static_cast<std::size_t>(DefinitionOf(match.code).orbSlot)]};
    return orb > 0.0 ? std::clamp(1.0 - std::abs(match.fromExact) / orb, 0.0, 1.0) : 1.0;
}

}  // namespace

std::vector<ListedAspect> ListAspects(const WheelSnapshot& chart, const OrbTable& orbs) {
    std::vector<ListedAspect> aspects;
    for (const int first : kGridOrder) {
        for (const int second : kGridOrder) {
            if (first == second) continue;
            const double separation = Separation(chart.PointLongitude[first], chart.PointLongitude[second]);
            const AspectMatch match = MatchAspect(separation, kListSearch, orbs);
            if (match.code == kNoAspect) continue;
            aspects.push_back({first, second, match.code, Exactness(match, orbs)});
        }
    }
    return aspects;
}

std::string AspectListText(const std::vector<ListedAspect>& aspects) {
    std::string text;
    for (const ListedAspect& aspect : aspects) {
        text += "  " + PointGlyph(aspect.first) + " " + AspectGlyph(aspect.code) + " " +
                PointGlyph(aspect.second) + "\n";
    }
    return text;
}

}  // namespace tolvanis
