#include "chart/chart_point.h"

#include <algorithm>
#include <cmath>

namespace tolvanis {
namespace {

constexpr std::string_view kListingNames =
    "SUN       MERCURY   VENUS     MARS      JUPITER   SATURN    URANUS    NEPTUNE   "
    "PLUTO     MOON      N. NODE   S. NODE   P. OF F.  ASC       MC        ";
constexpr std::string_view kSigns = "ARITAUGEMCANLEOVIRLIBSCOSAGCAPAQUPIS";

}  // namespace

std::string_view PointName(int point) {
    const auto place = std::find(kGridOrder.begin(), kGridOrder.end(), point);
    return place == kGridOrder.end() ? std::string_view{}
                                     : kGridNames[static_cast<std::size_t>(place - kGridOrder.begin())];
}

std::string_view ListingPointName(int point) {
    return kListingNames.substr(static_cast<std::size_t>(point - 1) * 10, 10);
}

std::string_view SignAbbreviation(int sign) {
    return kSigns.substr(static_cast<std::size_t>(sign - 1) * 3, 3);
}

int SignOf(double longitude) {
    return static_cast<int>(std::floor(longitude / 30.0)) % 12 + 1;
}

}  // namespace tolvanis
