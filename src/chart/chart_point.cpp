#include "chart/chart_point.h"

#include <algorithm>
#include <cmath>

#include "text/columns.h"

namespace tolvanis {
namespace {

constexpr std::string_view kListingNames =
    "SUN       MERCURY   VENUS     MARS      JUPITER   SATURN    URANUS    NEPTUNE   "
    "PLUTO     MOON      N. NODE   S. NODE   P. OF F.  ASC       MC        ";

}  // namespace

int GridPosition(int point) {
    return static_cast<int>(std::ranges::find(kGridOrder, point) - kGridOrder.begin()) + 1;
}

std::string_view PointName(int point) {
    return GridName(GridPosition(point));
}

std::string_view ListingPointName(int point) {
    return kListingNames.substr(static_cast<std::size_t>(point - 1) * 10, 10);
}

std::string SignAbbreviation(int sign) {
    return UpperCase(SignName(sign).substr(0, 3));
}

int SignOf(double longitude) {
    return static_cast<int>(std::floor(longitude / 30.0)) % 12 + 1;
}

}  // namespace tolvanis
