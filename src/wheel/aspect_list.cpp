#include "wheel/aspect_list.h"

#include "aspects/aspect_definitions.h"
#include "wheel/symbols.h"

namespace tolvanis {
namespace {

constexpr std::array kListSearch = {kSextile,    kSquare,       kTrine,      kOpposition,   kSemiSextile,
                                    kSemiSquare, kSesquisquare, kQuincunx,   kSemiQuintile, kNonagen,
                                    kQuintile,   kTrecile,      kBiQuintile, kSeptile,      kConjunction};

}  // namespace

std::vector<ListedAspect> ListAspects(const WheelSnapshot& chart, const OrbTable& orbs) {
    std::vector<ListedAspect> aspects;
    for (const int first : kGridOrder) {
        for (const int second : kGridOrder) {
            if (first == second) continue;
            const double separation = Separation(chart.PointLongitude[first], chart.PointLongitude[second]);
            const int code = MatchAspect(separation, kListSearch, orbs).code;
            if (code != kNoAspect) aspects.push_back({first, second, code});
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
