#pragma once
// Charts made by hand and a surface that records what is drawn on it.

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "app/options_file.h"
#include "chart/angles.h"
#include "support.h"
#include "text/columns.h"
#include "wheel/wheel_drawing.h"

namespace tolvanis {

// Equal houses from the given Ascendant; every point on the Ascendant, until a test puts it elsewhere.
inline WheelSnapshot EqualHouses(double ascendant) {
    WheelSnapshot chart;
    for (int house = 1; house <= 12; ++house) {
        chart.HouseCusps.SetHouse(house, Norm360(ascendant + 30.0 * (house - 1)));
    }
    for (int point = 1; point <= kChartPointCount; ++point) {
        chart.PointLongitude[point] = ascendant;
        chart.PointHouse[point] = 1;
    }
    return chart;
}

inline void Put(WheelSnapshot& chart, int point, double longitude) {
    chart.PointLongitude[point] = Norm360(longitude);
    chart.PointHouse[point] = static_cast<int>(Norm360(longitude - chart.HouseCusps.OfHouse(1)) / 30.0) + 1;
}

// One point in the middle of each house, the nodes and the Ascendant where they belong: an empty chart to put
// a case into.
inline WheelSnapshot SpreadChart(double ascendant) {
    WheelSnapshot chart = EqualHouses(ascendant);
    for (int point = 1; point <= kChartPointCount; ++point)
        Put(chart, point, ascendant + 30.0 * (point % 12) + 15.0);
    return chart;
}

inline WheelSnapshot SnapshotOf(const std::string& record, HouseSystem system = HouseSystem::Placidus) {
    return MakeWheelSnapshot(NatalOf(record, system), ChartOf(record, system));
}

inline Options DeliveredOptions() {
    Options options;
    EXPECT_TRUE(ReadOptions(DataFiles(DELIVERED_DATA_DIR), options));
    return options;
}

inline WheelData DeliveredWheelData() {
    const auto data = ReadWheelData(DataFiles(DELIVERED_DATA_DIR));
    EXPECT_TRUE(data) << data.message();
    return data ? *data : WheelData{};
}

// The farthest that a rectangle comes from the wheel's centre.
inline double FarthestFromCentre(const Box& box) {
    return std::hypot(std::max(std::abs(box.left), std::abs(box.right)),
                      std::max(std::abs(box.top), std::abs(box.bottom)));
}

// Every character is 0.6 of the size wide and 0.7 high, in a cell of 1.2.
class RecordingSurface : public DrawingSurface {
  public:
    struct DrawnLine {
        Point from, to;
        Stroke stroke;
    };
    Extent extent;
    int background = -1;
    std::vector<DrawnLine> lines;
    struct DrawnDisc {
        Point centre;
        double radius;
        int colour;
    };
    std::vector<double> circles;  // radii
    std::vector<DrawnDisc> discs;
    std::vector<RingSector> sectors;
    std::vector<WheelText> texts;

    void SetCoordinates(const Extent& given) override { extent = given; }
    void Clear(int colour) override { background = colour; }
    void Line(Point from, Point to, Stroke stroke) override { lines.push_back({from, to, stroke}); }
    void Lines(std::span<const LineSpan> given, Stroke stroke) override {
        for (const LineSpan& line : given) Line(line.from, line.to, stroke);
    }
    void Circle(Point, double radius, Stroke) override { circles.push_back(radius); }
    void Disc(Point centre, double radius, int colour) override { discs.push_back({centre, radius, colour}); }
    void Sector(const RingSector& sector, int) override { sectors.push_back(sector); }
    TextBox Measure(std::string_view text, TextFont font) const override {
        const double width = 0.6 * font.size * static_cast<double>(CharacterCount(text));
        const double top = 0.2 * font.size;
        const double bottom = 0.9 * font.size;
        return {width, 1.2 * font.size, 0.0, top, width, bottom, top, width + bottom, -bottom, width - top};
    }
    void Text(Point corner, std::string_view text, TextFont font, int colour) override {
        texts.push_back({corner, std::string(text), font, colour});
    }
};

}  // namespace tolvanis
