#include "output/natal_listing.h"

#include <array>
#include <cmath>

#include "output/zodiac_text.h"
#include "text/dates.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

// The South Node stands opposite the North Node and has no row.
constexpr std::array kRows = {kSun,       kMoon,          kMercury,   kVenus,    kMars,
                              kJupiter,   kSaturn,        kUranus,    kNeptune,  kPluto,
                              kNorthNode, kPartOfFortune, kAscendant, kMidheaven};

void WriteHeader(DataBuffer& buffer, const NatalData& natal) {
    buffer.AppendBlankLine();
    buffer.AppendLine("  " + natal.Name);
    buffer.AppendLine(BirthDataLine(natal));
}

// Of a modern chart only: what the positions are, and what they took for Delta T.
void WriteTheory(DataBuffer& buffer, const ChartPositions& chart) {
    if (chart.Theory == Theory::Classic) return;
    std::string line = "  Modern positions    Delta T = " + FormatMask(chart.DeltaT, "##0.0") + " seconds";
    if (chart.PlutoFromOldSeries) line.append("    ").append(kOldPlutoRemark);
    buffer.AppendLine(line);
}

void WriteCusps(DataBuffer& buffer, const NatalData& natal, const HouseCusps& cusps) {
    buffer.AppendBlankLine();
    buffer.AppendLine(std::string("  HOUSE CUSPS - ").append(HouseSystemName(natal.HouseSystem)));
    for (int first = 1; first <= 12; first += 3) {
        std::string line;
        for (int position = first; position < first + 3; ++position) {
            line.append(position == first ? "  " : " ").append(HouseOrdinal(position));
            line.append(" house = ").append(FormatDegMin(cusps[position]));
        }
        buffer.AppendLine(line);
    }
}

void WriteAngles(DataBuffer& buffer, const ChartPositions& chart) {
    const auto write = [&](std::string_view left, double leftAngle, std::string_view right,
                           double rightAngle) {
        std::string line = "  ";
        line.append(left).append(" =  ").append(FormatDegMin(leftAngle));
        line.append(10, ' ').append(right).append(" =  ").append(FormatDegMin(rightAngle));
        buffer.AppendLine(line);
    };
    buffer.AppendBlankLine();
    write("Vertex      ", chart.Vertex, "Equatorial Ascendant", chart.EquatorialAscendant);
    write("Co-Ascendant", chart.CoAscendant, "Polar Ascendant     ", chart.PolarAscendant);
}

void WritePoints(DataBuffer& buffer, const ChartPositions& chart) {
    buffer.AppendBlankLine();
    for (const int point : kRows) {
        std::string line = "  ";
        line.append(FormatDegMinSec(chart.PointLongitude[point]))
            .append("   ")
            .append(ListingPointName(point));
        line.append(1, chart.RetrogradeFlags[static_cast<std::size_t>(point - 1)]).append("    (");
        line.append(HouseOrdinal(HouseCusps::PositionOfHouse(chart.PointHouse[point]))).append(" HOUSE)    ");
        line.append(FormatDeclination(chart.PointDeclination[point]));
        buffer.AppendLine(line);
    }
    buffer.AppendLine(std::string(51, ' ') + "Decl.");
}

void WriteTrueNode(DataBuffer& buffer, const ChartPositions& chart) {
    buffer.AppendBlankLine();
    buffer.AppendLine("  " + FormatDegMinSec(chart.TrueNodeLongitude) + "   TRUE NORTH NODE" +
                      std::string(16, ' ') + FormatDeclination(chart.TrueNodeDeclination));
}

}  // namespace

std::string BirthDataLine(const NatalData& natal) {
    std::string line = "  " + FormatDate({natal.Year, natal.Month, natal.Day});
    line.append("    TZ = ").append(FormatMask(natal.TimeZone, "##0.0"));
    line.append("      ").append(FormatMask(natal.ClockTime, "#0.00")).append(" ").append(natal.AmPm);
    line.append("   ").append(FormatMask(std::abs(natal.Latitude), "##0.00")).append(" ");
    line.append(natal.LatitudeSide);
    line.append("    ").append(FormatMask(std::abs(natal.Longitude), "##0.00")).append(" ");
    return line.append(natal.LongitudeSide);
}

void WriteNatalListing(DataBuffer& buffer, const NatalData& natal, const ChartPositions& chart) {
    WriteHeader(buffer, natal);
    WriteTheory(buffer, chart);
    WriteCusps(buffer, natal, chart.HouseCusps);
    WriteAngles(buffer, chart);
    WritePoints(buffer, chart);
    WriteTrueNode(buffer, chart);
}

}  // namespace tolvanis
