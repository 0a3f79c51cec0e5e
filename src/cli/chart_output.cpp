#include "cli/chart_output.h"

#include <algorithm>
#include <charconv>

#include "app/chart_driver.h"
#include "chart/angles.h"
#include "interp/natal_report.h"
#include "interp/report_pages.h"
#include "output/text_files.h"
#include "wheel/ascii_chart.h"

namespace tolvanis {
namespace {

// Composes one JSON value; the caller keeps the brackets in balance.
class JsonWriter {
  public:
    void Open(char bracket) {
        Separate();
        text_ += bracket;
        first_ = true;
    }
    void Close(char bracket) {
        text_ += bracket;
        first_ = false;
    }
    void Key(std::string_view key) {
        Separate();
        Quote(key);
        text_ += ':';
        first_ = true;
    }
    void String(std::string_view value) {
        Separate();
        Quote(value);
    }
    void Number(double value) {
        Separate();
        char buffer[32];
        const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
        text_.append(buffer, end);
    }
    void Bool(bool value) {
        Separate();
        text_ += value ? "true" : "false";
    }
    void Member(std::string_view key, double value) {
        Key(key);
        Number(value);
    }
    void Member(std::string_view key, std::string_view value) {
        Key(key);
        String(value);
    }
    std::string Take() { return std::move(text_); }

  private:
    void Separate() {
        if (!first_) text_ += ',';
        first_ = false;
    }
    void Quote(std::string_view value) {
        text_ += '"';
        for (const char c : value) {
            if (c == '"' || c == '\\') {
                text_.append(1, '\\').append(1, c);
            } else if (static_cast<unsigned char>(c) < 0x20) {
                constexpr std::string_view kHex = "0123456789abcdef";
                text_.append("\\u00").append(1, kHex[static_cast<std::size_t>(c) >> 4]);
                text_ += kHex[static_cast<std::size_t>(c) & 15];
            } else {
                text_ += c;
            }
        }
        text_ += '"';
    }

    std::string text_;
    bool first_ = true;
};

void WriteBirth(JsonWriter& json, const NatalData& natal) {
    json.Member("name", natal.Name);
    json.Member("year", natal.Year);
    json.Member("month", natal.Month);
    json.Member("day", natal.Day);
}

// The theory, the instant and the frame that the longitudes are counted in.
void WriteFrame(JsonWriter& json, const ChartPositions& chart) {
    json.Member("theory", TheoryCode(chart.Theory));
    json.Member("julianDay", chart.JulianDay);
    json.Member("deltaT", chart.DeltaT);
    if (chart.PlutoFromOldSeries) json.Member("remark", kOldPlutoRemark);
    json.Member("centuries", chart.Centuries);
    json.Member("obliquity", chart.ObliquityDegrees);
    json.Member("ramc", RadToDeg(chart.RAMC));
    json.Member("siderealTime", chart.SiderealTimeText);
}

void WriteAngles(JsonWriter& json, const ChartPositions& chart) {
    json.Member("midheaven", chart.Midheaven);
    json.Member("ascendant", chart.Ascendant);
    json.Member("vertex", chart.Vertex);
    json.Member("equatorialAscendant", chart.EquatorialAscendant);
    json.Member("coAscendant", chart.CoAscendant);
    json.Member("polarAscendant", chart.PolarAscendant);
    json.Key("houseCusps");
    json.Open('[');
    for (int position = 1; position <= 12; ++position) json.Number(chart.HouseCusps[position]);
    json.Close(']');
}

void WritePoints(JsonWriter& json, const ChartPositions& chart) {
    json.Key("points");
    json.Open('[');
    for (int point = 1; point <= kChartPointCount; ++point) {
        json.Open('{');
        json.Member("name", PointName(point));
        json.Member("longitude", chart.PointLongitude[point]);
        json.Member("latitude", chart.PointLatitude[point]);
        json.Member("declination", chart.PointDeclination[point]);
        json.Member("house", chart.PointHouse[point]);
        json.Key("retrograde");
        json.Bool(chart.IsRetrograde(point));
        json.Close('}');
    }
    json.Close(']');
}

void WriteTrueNode(JsonWriter& json, const ChartPositions& chart) {
    json.Key("trueNode");
    json.Open('{');
    json.Member("longitude", chart.TrueNodeLongitude);
    json.Member("declination", chart.TrueNodeDeclination);
    json.Close('}');
}

void WriteAspects(JsonWriter& json, const FoundAspects& aspects) {
    json.Key("aspects");
    json.Open('[');
    for (const FoundAspect& aspect : aspects.list()) {
        json.Open('{');
        json.Member("first", GridName(aspect.row));
        json.Member("second", GridName(aspect.column));
        json.Member("code", aspect.code);
        json.Member("angle", DefinitionOf(aspect.code).angle);
        json.Member("separation", aspect.separation);
        json.Member("fromExact", aspect.fromExact);
        json.Close('}');
    }
    json.Close(']');
}

void WritePlaced(JsonWriter& json, const PlacedBirth& placed) {
    const AtlasPlace& place = placed.place;
    json.Member("zone", placed.zone);
    json.Key("place");
    json.Open('{');
    json.Member("name", place.name);
    json.Member("region", place.region);
    json.Member("country", place.country);
    json.Member("longitude", -place.place.degreesEast);
    json.Member("latitude", place.place.degreesNorth);
    json.Member("zoneName", place.place.zone);
    json.Close('}');
    if (placed.reading) {
        json.Member("zoneKind", KindCode(placed.reading->kind));
        json.Member("zoneGrade", GradeCode(placed.reading->grade));
    }
    json.Member("zoneRelease", placed.release);
}

}  // namespace

std::string ChartAsText(const NatalChart& chart, const Options& options) {
    DataBuffer buffer;
    WriteChart(buffer, chart, options);
    buffer.AppendBlankLine();  // as every showing in the window does
    return buffer.ListingText("\n");
}

std::string ChartAsAscii(const NatalChart& chart) {
    DataBuffer buffer;
    buffer.StartListing();
    buffer.AppendBlankLine();
    WriteAsciiChart(buffer, MakeWheelSnapshot(chart.natal, chart.positions));
    buffer.AppendBlankLine();
    return buffer.ListingText("\n");
}

Result<std::string> ChartAsReport(const NatalChart& chart, const Options& options, const DataFiles& files) {
    ReportBuffer report;
    const std::vector<std::string> personalBlock = ReadPersonalBlock(files.Own(kPersonalBlockName));
    BuildNatalReport(report, {chart, options, files, personalBlock});
    if (report.overflowed()) return Fault{"the report is longer than 32,767 lines"};
    std::string text = SavedReport(report, ReportPageFormOf(options), "\n");
    // The texts are files of anyone's; nothing in them controls a terminal.
    const auto controls = [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return (byte < 0x20 || byte == 0x7F) && std::string_view("\n\f\t").find(c) == std::string_view::npos;
    };
    std::ranges::replace_if(text, controls, ' ');
    return text;
}

std::string ChartAsJson(const NatalChart& chart, const PlacedBirth* placed) {
    JsonWriter json;
    json.Open('{');
    WriteBirth(json, chart.natal);
    if (placed != nullptr) WritePlaced(json, *placed);
    json.Member("houseSystem", HouseSystemCode(chart.natal.HouseSystem));
    WriteFrame(json, chart.positions);
    WriteAngles(json, chart.positions);
    WritePoints(json, chart.positions);
    WriteTrueNode(json, chart.positions);
    WriteAspects(json, chart.aspects);
    json.Close('}');
    return json.Take() + "\n";
}

}  // namespace tolvanis
