#include "wheel/wheel_snapshot.h"

#include <cmath>

#include "text/dates.h"
#include "text/numbers.h"

namespace tolvanis {

WheelSnapshot MakeWheelSnapshot(const NatalData& natal, const ChartPositions& chart) {
    WheelSnapshot snapshot;
    snapshot.Name = natal.Name;
    snapshot.PointLongitude = chart.PointLongitude;
    snapshot.HouseCusps = chart.HouseCusps;
    snapshot.PointDeclination = chart.PointDeclination;
    snapshot.PointHouse = chart.PointHouse;
    for (int point = 1; point <= kChartPointCount; ++point) {
        snapshot.IsRetrograde[point] = chart.IsRetrograde(point);
    }
    snapshot.TitleLines = {
        natal.Name + " - natal",
        FormatDate({natal.Year, natal.Month, natal.Day}),
        FormatMask(natal.ClockTime, "#0.00") + " " + natal.AmPm + " (" + NumberText(natal.TimeZone) + ")",
        FormatMask(std::abs(natal.Longitude), "##0.00") + " " + natal.LongitudeSide,
        FormatMask(std::abs(natal.Latitude), "#0.00") + " " + natal.LatitudeSide,
        chart.SiderealTimeText,
        std::string(HouseSystemName(natal.HouseSystem)),
    };
    return snapshot;
}

}  // namespace tolvanis
