#include "aspects/aspect_grid.h"

#include <cmath>

#include "text/columns.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

constexpr int kParallelOrbOption = 6;
constexpr int kRareAspectsOption = 16;

// The five characters that label a row.
std::string RowLabel(int row) {
    switch (GridPoint(row)) {
        case kNorthNode:
            return "N.N  ";
        case kSouthNode:
            return "S.N  ";
        case kPartOfFortune:
            return "P.F  ";
        case kMidheaven:
            return "MC   ";
        default:
            return std::string(GridName(row).substr(0, 3)) + "  ";
    }
}

std::string_view ParallelCell(double declinationA, double declinationB, float orb) {
    const auto difference = static_cast<float>(std::abs(std::abs(declinationA) - std::abs(declinationB)));
    if (difference > orb) return "---  ";
    return (declinationA >= 0) == (declinationB >= 0) ? " P   " : " CP  ";
}

std::string AspectCell(AspectCode code) {
    if (code == kNoAspect) return "---  ";
    return PadToThree(std::to_string(static_cast<int>(DefinitionOf(code).angle))) + "  ";
}

void WriteRows(DataBuffer& buffer, const ChartPositions& chart, const FoundAspects& aspects,
               float parallelOrb) {
    for (int row = 1; row <= kChartPointCount; ++row) {
        std::string line = "  " + RowLabel(row);
        for (int column = kChartPointCount; column >= 1; --column) {
            if (column == row) {
                line += "***  ";
            } else if (row < column) {
                line += AspectCell(aspects.CodeAt(row, column));
            } else {
                line += ParallelCell(chart.PointDeclination[GridPoint(row)],
                                     chart.PointDeclination[GridPoint(column)], parallelOrb);
            }
        }
        buffer.AppendLine(line);
    }
}

void WriteLegend(DataBuffer& buffer, bool rareAspects) {
    buffer.AppendBlankLine();
    buffer.AppendLine("    0  = conjunction    60 = sextile          90 = square         120 = trine");
    buffer.AppendLine("  180  = opposition      P = parallel         CP = contra-parallel");
    buffer.AppendBlankLine();
    buffer.AppendLine("   30  = semi-sextile   45 = semi-square     135 = sesquisquare   150 = quincunx");
    if (!rareAspects) return;
    buffer.AppendLine("   36  = semi-quintile  40 = nonagen          72 = quintile       108 = trecile");
    buffer.AppendLine("  144  = bi-quintile");
}

struct DegreesMinutes {
    int degrees;
    int minutes;
};

// The minutes rounded to the nearest; 60 of them make the next degree.
DegreesMinutes Split(double angle) {
    const double size = std::abs(angle);
    const int degrees = static_cast<int>(size);
    const int minutes = static_cast<int>(std::floor((size - degrees) * 60.0 + 0.5));
    return minutes == 60 ? DegreesMinutes{degrees + 1, 0} : DegreesMinutes{degrees, minutes};
}

void WriteList(DataBuffer& buffer, const FoundAspects& aspects) {
    buffer.AppendLine("  Planet     Planet    Separation   Degrees from exact");
    for (const FoundAspect& aspect : aspects.list()) {
        const DegreesMinutes separation = Split(aspect.separation);
        const DegreesMinutes fromExact = Split(aspect.fromExact);
        std::string line = "  ";
        line.append(PadRight(GridName(aspect.row), 11)).append(PadRight(GridName(aspect.column), 11));
        line.append(PadToThree(std::to_string(separation.degrees))).append("d ");
        line.append(TwoDigits(separation.minutes)).append("m       ");
        line.append(PadSignedToFour(std::to_string(fromExact.degrees))).append("d ");
        line.append(TwoDigits(fromExact.minutes)).append("m");
        buffer.AppendLine(line);
    }
}

}  // namespace

void FoundAspects::Add(const FoundAspect& aspect) {
    codes_[Index(aspect.row, aspect.column)] = aspect.code;
    list_.push_back(aspect);
}

FoundAspects FindAspects(const ChartPositions& chart, const Options& options) {
    FoundAspects found;
    const std::span<const AspectCode> codes = options[kRareAspectsOption] == 1.0F
                                                  ? std::span<const AspectCode>(kFullGridSearch)
                                                  : std::span<const AspectCode>(kGridSearch);
    for (int row = 1; row <= kChartPointCount; ++row) {
        for (int column = kChartPointCount; column > row; --column) {
            const double separation =
                Separation(chart.PointLongitude[GridPoint(row)], chart.PointLongitude[GridPoint(column)]);
            const AspectMatch match = MatchAspect(separation, codes, options.table());
            if (match.code != kNoAspect) found.Add({row, column, match.code, separation, match.fromExact});
        }
    }
    return found;
}

void WriteAspectGrid(DataBuffer& buffer, const ChartPositions& chart, const FoundAspects& aspects,
                     const Options& options) {
    buffer.AppendBlankLine();
    buffer.AppendLine(std::string(22, ' ') + "NATAL PLANET ASPECTS TO NATAL PLANETS");
    buffer.AppendBlankLine();
    buffer.AppendLine("        MC  Asc  P.F  S.N  N.N  Plu  Nep  Ura  Sat  Jup  Mar  Ven  Mer  Moo  Sun");
    WriteRows(buffer, chart, aspects, options[kParallelOrbOption]);
    WriteLegend(buffer, options[kRareAspectsOption] != 0.0F);
    buffer.AppendBlankLine();
    buffer.AppendBlankLine();
    WriteList(buffer, aspects);
}

}  // namespace tolvanis
