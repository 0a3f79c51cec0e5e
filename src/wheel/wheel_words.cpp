#include "wheel/wheel_words.h"

#include <algorithm>
#include <cmath>

#include "output/zodiac_text.h"
#include "text/numbers.h"
#include "wheel/zodiac_ring.h"

namespace tolvanis {
namespace {

std::string PlaceInWords(double longitude) {
    const ZodiacPlace place = SplitZodiac(longitude);
    return TwoDigits(place.degrees) + " " + std::string(SignName(place.sign)) + " " +
           TwoDigits(place.minutes);
}

struct Partner {
    int point = kSun;
    AspectCode code = kNoAspect;
};

// The aspects of a point that the picture shows.
std::vector<Partner> PartnersOf(const WheelRequest& request, int point) {
    std::vector<Partner> partners;
    const auto take = [&](const auto& aspects) {
        for (const auto& aspect : aspects) {
            if (aspect.first == point) partners.push_back({aspect.second, aspect.code});
            if (aspect.second == point) partners.push_back({aspect.first, aspect.code});
        }
    };
    if (request.options[kAspectLinesOption] != 1.0F) return partners;
    const WheelPlan plan = PlanFor(request);
    if (request.type == ChartType::ZodiacRing) {
        take(RingAspects(plan));
    } else {
        take(AspectLines(plan, PlaceGlyphs(request.chart, request.type)));
    }
    std::ranges::stable_sort(partners, {},
                             [](const Partner& partner) { return GridPosition(partner.point); });
    return partners;
}

// The size of an arc in degrees and minutes: "1°12'".
std::string ArcText(double degrees) {
    const int minutes = static_cast<int>(std::lround(std::abs(degrees) * 60.0));
    return std::to_string(minutes / 60) + "\xC2\xB0" + TwoDigits(minutes % 60) + "'";
}

}  // namespace

std::string PointInWords(const WheelRequest& request, int point) {
    const WheelSnapshot& chart = request.chart;
    std::string words = std::string(PointName(point)) + " " + PlaceInWords(chart.PointLongitude[point]) +
                        ", house " + std::to_string(chart.PointHouse[point]);
    if (chart.IsRetrograde[point]) words += ", retrograde";
    words += ".";
    bool isFirst = true;
    for (const Partner& partner : PartnersOf(request, point)) {
        words += isFirst ? " " : ", ";
        words += std::string(DefinitionOf(partner.code).name) + " " + std::string(PointName(partner.point));
        isFirst = false;
    }
    return isFirst ? words : words + ".";
}

std::string PointTip(const WheelRequest& request, int point) {
    const WheelSnapshot& chart = request.chart;
    std::string tip = std::string(PointName(point)) + "  " + PlaceInWords(chart.PointLongitude[point]);
    if (chart.IsRetrograde[point]) tip += "  R";
    tip += "\nHouse " + std::to_string(chart.PointHouse[point]) + ", declination " +
           FormatDeclination(chart.PointDeclination[point]);
    for (const Partner& partner : PartnersOf(request, point)) {
        const AspectDefinition& aspect = DefinitionOf(partner.code);
        const double separation =
            Separation(chart.PointLongitude[point], chart.PointLongitude[partner.point]);
        tip += "\n" + std::string(aspect.name) + " " + std::string(PointName(partner.point)) + "  " +
               ArcText(separation - aspect.angle);
    }
    return tip;
}

std::string WheelInWords(const WheelRequest& request) {
    std::string words;
    const std::vector<int> order = PlacementOrder(request.chart);
    for (int house = 1; house <= 12; ++house) {
        words += "House " + std::to_string(house) + ", cusp " +
                 PlaceInWords(request.chart.HouseCusps.OfHouse(house)) + ". ";
        for (const int point : order) {
            if (request.chart.PointHouse[point] == house) words += PointInWords(request, point) + " ";
        }
    }
    words.pop_back();
    return words;
}

}  // namespace tolvanis
