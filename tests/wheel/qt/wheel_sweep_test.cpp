// The wheels of many births, measured by the outlines of the real font: no two texts touch, no number is
// torn, nothing leaves the picture. A sample runs always; TOLVANIS_SWEEP=whole in the environment draws all.
#include <gmock/gmock.h>

#include <QPainterPath>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <random>

#include "platform/qt/painter_surface.h"
#include "platform/qt/symbol_font.h"
#include "text/numbers.h"
#include "wheel/symbols.h"
#include "wheel/wheel_page.h"
#include "wheel/wheel_support.h"
#include "wheel/zodiac_ring.h"

namespace tolvanis {
namespace {

// Records texts and keeps their outlines.
class OutlineSurface : public RecordingSurface {
  public:
    explicit OutlineSurface(TextOutlines& outlines)
        : outlines_(outlines),
          image_(1, 1, QImage::Format_RGB32),
          painter_(&image_),
          font_(painter_, QRectF(0, 0, 1, 1), outlines) {}

    TextBox Measure(std::string_view text, TextFont font) const override { return font_.Measure(text, font); }

    // The outline in wheel units, y downwards.
    QPainterPath PathOf(const WheelText& text) const {
        const double scale = text.font.size / TextOutlines::kUnit;
        QTransform place = QTransform::fromTranslate(text.corner.x, -text.corner.y);
        return place.scale(scale, scale).map(outlines_.Of(text.text, text.font.bold).path);
    }

  private:
    TextOutlines& outlines_;
    QImage image_;
    QPainter painter_;
    PainterSurface font_;
};

struct Sweep {
    int wheels = 0;
    int texts = 0;
    double smallestLetters = 1000.0;  // wheel units, of planet labels on the screen
    std::vector<std::string> faults;

    void Fault(const std::string& what) { faults.push_back(what); }
};

// Symbols by their code.
std::string Readable(const std::string& text) {
    for (int code = 161; code < 239; ++code) {
        if (text == SymbolText(code)) return "symbol " + std::to_string(code);
    }
    return text;
}

bool IsNumber(const std::string& text) {
    return text.find_first_not_of("0123456789") == std::string::npos;
}

// What must hold of every picture.
void Check(const OutlineSurface& surface, const std::string& what, bool isRing, Sweep& sweep) {
    ++sweep.wheels;
    std::vector<InkShape> shapes;
    for (const WheelText& text : surface.texts) {
        ++sweep.texts;
        shapes.push_back(ShapeOf(text, surface));
        if (!Inside(shapes.back().box, surface.extent))
            sweep.Fault(what + ": " + Readable(text.text) + " leaves the picture");
        const bool inRing = FarthestFromCentre(shapes.back().box) < 212.0 &&
                            NearestToCentre(shapes.back().box) > (isRing ? kRingInnerRadius : kInnerRadius);
        if (inRing && IsNumber(text.text) && text.text.size() != 2) {
            sweep.Fault(what + ": torn number " + text.text);
        }
        if (inRing && IsNumber(text.text)) {
            sweep.smallestLetters = std::min(sweep.smallestLetters, text.font.size);
        }
    }
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (!Touch(shapes[i], shapes[j], 0.0)) continue;
            const WheelText& a = surface.texts[i];
            const WheelText& b = surface.texts[j];
            if (surface.PathOf(a).intersects(surface.PathOf(b))) {
                sweep.Fault(what + ": " + Readable(a.text) + " touches " + Readable(b.text));
            }
        }
    }
}

// Births of all latitudes and crowds: a grid of latitudes, hours and days on which planets gathered, then
// days drawn by lot from 1500 to 2100.
std::vector<std::string> Births(int count) {
    constexpr std::array kGatherings = {"04 Feb 1962", "05 May 2000", "20 Feb 1524", "11 Aug 1999",
                                        "15 Sep 1186", "12 Jan 1994", "01 May 1941", "26 Apr 1821",
                                        "21 Mar 1985", "14 Jan 1910"};
    constexpr std::array kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                    "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    constexpr std::array kLatitudes = {"65.59",  "65.01",  "60.10",  "51.29",  "40.45",  "28.36", "05.33",
                                       "-00.13", "-16.30", "-33.52", "-45.52", "-54.48", "-64.50"};
    std::mt19937 lot(1962);  // its values are the same everywhere
    const auto draw = [&](unsigned below) { return static_cast<int>(lot() % below); };
    std::vector<std::string> births;
    for (int i = 0; i < count; ++i) {
        const std::string day =
            i % 2 == 0 ? std::string(kGatherings[static_cast<std::size_t>(i / 2) % kGatherings.size()])
                       : TwoDigits(1 + draw(28)) + " " + kMonths[static_cast<std::size_t>(draw(12))] + " " +
                             std::to_string(1500 + draw(600));
        const std::string clock = std::to_string(1 + draw(12)) + "." + TwoDigits(draw(60));
        births.push_back("Birth " + std::to_string(i) + "," + day + "," + clock +
                         (draw(2) == 0 ? ",A," : ",P,") + std::to_string(draw(9) - 4) + ",0" +
                         TwoDigits(draw(60)) + "." + TwoDigits(draw(60)) + "," +
                         kLatitudes[static_cast<std::size_t>(draw(kLatitudes.size()))]);
    }
    return births;
}

Sweep RunSweep(int count, int step) {
    constexpr std::array kSystems = {HouseSystem::Placidus, HouseSystem::Regiomontanus, HouseSystem::Koch,
                                     HouseSystem::Campanus, HouseSystem::Porphyry,      HouseSystem::EqualAsc,
                                     HouseSystem::EqualMC,  HouseSystem::Meridian,      HouseSystem::Morinus};
    constexpr std::array kSizes = {std::pair{500, 500},  std::pair{700, 700}, std::pair{937, 740},
                                   std::pair{1600, 900}, std::pair{600, 900}, std::pair{400, 400}};
    constexpr std::array kPages = {std::pair{523, 770},
                                   std::pair{540, 720}};  // A4 and Letter less half an inch
    const Options options = DeliveredOptions();
    const WheelData data = DeliveredWheelData();
    OrbTable orbs{};
    EXPECT_TRUE(ReadOrbsFile(DELIVERED_DATA_DIR "/NATAL.ORB", orbs));
    TextOutlines outlines;
    Sweep sweep;
    int turn = 0;
    for (const std::string& record : Births(count)) {
        for (const HouseSystem system : kSystems) {
            const WheelSnapshot chart = SnapshotOf(record, system);
            for (int type = 0; type < 3; ++type) {
                const std::string what = record + " " + chart.TitleLines[6] + " type " + std::to_string(type);
                for (const auto& [width, height] : kSizes) {
                    if (turn++ % step != 0) continue;
                    OutlineSurface surface(outlines);
                    DrawWheel(surface, {.chart = chart,
                                        .data = data,
                                        .options = options,
                                        .type = ChartTypeOf(type),
                                        .width = width * 1.0,
                                        .height = height * 1.0,
                                        .orbs = orbs});
                    Check(surface, what + " " + std::to_string(width) + "x" + std::to_string(height),
                          type == 2, sweep);
                }
                for (const auto& [width, height] : kPages) {
                    if (turn++ % step != 0) continue;
                    OutlineSurface surface(outlines);
                    DrawPage(surface, {chart,
                                       data,
                                       options,
                                       type,
                                       {"Jane Doe, Astrologer", "Telephone 555-0123"},
                                       orbs,
                                       width * 1.0,
                                       height * 1.0});
                    Check(surface, what + " page", type == 2, sweep);
                }
            }
        }
    }
    return sweep;
}

TEST(WheelSweep, TextsStandClearInEveryCrowd) {
    ASSERT_TRUE(LoadSymbolFont(DataFiles(DELIVERED_DATA_DIR "/../fonts")));
    const char* extent = std::getenv("TOLVANIS_SWEEP");
    const bool whole = extent != nullptr && std::string(extent) == "whole";
    const auto start = std::chrono::steady_clock::now();
    const Sweep sweep = whole ? RunSweep(270, 1) : RunSweep(40, 23);
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    std::cout << sweep.wheels << " pictures, " << sweep.texts
              << " texts, smallest letters of a planet's position " << sweep.smallestLetters << " units, "
              << took.count() << " s\n";
    EXPECT_GT(sweep.wheels, 300);
    EXPECT_GE(sweep.smallestLetters, 6.0);
    EXPECT_EQ(sweep.faults.size(), 0u);
    for (std::size_t i = 0; i < std::min<std::size_t>(sweep.faults.size(), 100); ++i) {
        ADD_FAILURE() << sweep.faults[i];
    }
}

}  // namespace
}  // namespace tolvanis
