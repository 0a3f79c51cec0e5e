// The wheel's geometry and colours, on a surface that records them.
#include "wheel/wheel_drawing.h"

#include <gmock/gmock.h>

#include "output/zodiac_text.h"
#include "text/numbers.h"
#include "wheel/planet_labels.h"
#include "wheel/symbols.h"
#include "wheel/wheel_blocks.h"
#include "wheel/wheel_page.h"
#include "wheel/wheel_support.h"
#include "wheel/wheel_words.h"
#include "wheel/zodiac_ring.h"

namespace tolvanis {
namespace {

struct DrawingTest : ::testing::Test {
    Options options = DeliveredOptions();
    WheelData data = DeliveredWheelData();
    WheelSnapshot chart = SpreadChart(100.0);
    RecordingSurface surface;

    WheelRequest Request(ChartType type, double size = 800.0) const {
        return {
            .chart = chart, .data = data, .options = options, .type = type, .width = size, .height = size};
    }
    RecordingSurface& Draw(const WheelRequest& request) {
        surface = {};
        DrawWheel(surface, request);
        return surface;
    }
    RecordingSurface& Draw(ChartType type) { return Draw(Request(type)); }
    bool HasLine(Point from, Point to) const {
        return std::ranges::any_of(surface.lines, [&](const RecordingSurface::DrawnLine& line) {
            return std::hypot(line.from.x - from.x, line.from.y - from.y) < 1e-3 &&
                   std::hypot(line.to.x - to.x, line.to.y - to.y) < 1e-3;
        });
    }
    std::vector<WheelText> Texts(const std::string& text) const {
        std::vector<WheelText> found;
        std::ranges::copy_if(surface.texts, std::back_inserter(found),
                             [&](const WheelText& drawn) { return drawn.text == text; });
        return found;
    }
    std::vector<int> AspectCodes() const {
        std::vector<int> codes;
        for (int code = kConjunction; code <= kSeptile; ++code) {
            if (!Texts(AspectGlyph(AspectCode{code})).empty()) codes.push_back(code);
        }
        return codes;
    }
};

TEST(WheelScale, FollowsTheShape) {
    const struct {
        double width, height;
        int scale;
    } cases[] = {{700, 700, 225}, {1000, 700, 321}, {700, 1000, 244},
                 {937, 767, 275}, {1, 0, 244},      {90000, 1, 32767}};
    for (const auto& c : cases)
        EXPECT_EQ(StartScale(c.width, c.height), c.scale) << c.width << "x" << c.height;
    const Extent wide = WindowExtent(1000, 700);
    EXPECT_NEAR(wide.top - wide.bottom, 2 * 225.0 / 0.86, 1.0);
    EXPECT_NEAR((wide.right - wide.left) / (wide.top - wide.bottom), 1000.0 / 700.0, 1e-9);
}

TEST_F(DrawingTest, HouseLinesOfBothTypes) {
    for (int house = 1; house <= 12; ++house)
        chart.HouseCusps.SetHouse(house, Norm360(100.0 + 30.0 * (house - 1)));
    chart.HouseCusps.SetHouse(10, 35.0);
    Draw(ChartType::American);
    EXPECT_TRUE(HasLine({0, 116.1}, {0, 209.9475}));
    EXPECT_TRUE(HasLine({-103.9230, -58.05}, {-187.9275, -104.9738}));  // 210
    EXPECT_TRUE(HasLine({0, 209.9475}, {0, 217}));                      // the rest of the way to the circle
    Draw(ChartType::European);
    EXPECT_FALSE(HasLine({0, 116.1}, {0, 209.9475}));
    EXPECT_TRUE(HasLine({-50.7142, 105.2223}, {-91.7082, 190.2776}));  // 35 - 100 + 180 = 115
    EXPECT_THAT(surface.circles, ::testing::ElementsAre(217.0, 120.0));
}

TEST_F(DrawingTest, AspectLinesAreInclusiveAndTheLastMatchWins) {
    options[2] = options[3] = options[4] = options[5] = options[10] = 5.0F;
    const struct {
        double separation;
        std::vector<int> codes;
    } cases[] = {{54.9, {}},        {55.0, {kSextile}},   {65.0, {kSextile}},     {95.0, {kSquare}},
                 {125.0, {kTrine}}, {145.0, {kQuincunx}}, {175.0, {kOpposition}}, {0.0, {}}};
    const auto drawn = [&](double separation) {
        chart = EqualHouses(10.0);
        Put(chart, kSun, 10.0 + separation);
        Draw(ChartType::American);
        return AspectCodes();
    };
    for (const auto& c : cases) EXPECT_EQ(drawn(c.separation), c.codes) << c.separation;
    options[4] = 40.0F;  // 90 degrees is now a trine too, and the trine comes later
    EXPECT_THAT(drawn(90.0), ::testing::ElementsAre(kTrine));
    options[47] = 0.0F;
    EXPECT_THAT(drawn(90.0), ::testing::IsEmpty());
}

TEST_F(DrawingTest, AspectLinesJoinTheGlyphAngles) {
    chart = EqualHouses(0.0);
    Put(chart, kMoon, 90.0);  // first slot of the fourth house, 272 degrees; the others pile up from 180 on
    Draw(ChartType::American);
    EXPECT_TRUE(HasLine(OnWheel(180.0, 120.0), OnWheel(272.0, 120.0)));
}

TEST_F(DrawingTest, HalfPageIsWhiteWithBlackSoftAspects) {
    options[100] = 3.0F;
    chart = EqualHouses(0.0);
    Put(chart, kMoon, 60.0);
    EXPECT_EQ(Draw(ChartType::American).background, 3);
    EXPECT_EQ(Texts(AspectGlyph(kSextile)).at(0).colour, static_cast<int>(options[97]));
    WheelRequest request = Request(ChartType::American);
    request.use = WheelUse::HalfPage;
    EXPECT_EQ(Draw(request).background, kWhite);
    EXPECT_EQ(Texts(AspectGlyph(kSextile)).at(0).colour, kBlack);
    options[112] = 2.0F;
    options[178] = 0.0F;
    surface = {};
    DrawPage(surface, {chart, data, options});
    EXPECT_EQ(Texts(AspectGlyph(kSextile)).at(0).colour, 2) << "on a whole page they keep their colour";
}

TEST_F(DrawingTest, CuspLabelsStandWhereTheTablePutsThem) {
    chart.HouseCusps.SetHouse(10, 5.55);  // 05 Aries 33
    Draw(ChartType::American);
    const std::string expected[] = {"0", "5", SignGlyph(1), "3", "3"};
    for (std::size_t part = 0; part < 5; ++part) {
        const Point corner{1.0 * data.cuspLabels[2 * part], 1.0 * data.cuspLabels[2 * part + 1]};
        EXPECT_TRUE(std::ranges::any_of(surface.texts, [&](const auto& text) {
            return text.corner == corner && text.text == expected[part] && text.font.bold == (part < 2);
        })) << part;
    }
}

TEST_F(DrawingTest, EverySignStandsInTheRingOnce) {
    // Two cusps in Leo, none in Libra: houses of 5, 55 ... degrees.
    const double cusps[] = {122, 148, 170, 215, 245, 275, 302, 328, 350, 35, 65, 95};
    for (int house = 1; house <= 12; ++house) chart.HouseCusps.SetHouse(house, cusps[house - 1]);
    const std::vector<SignMark> ring = SignRing(chart.HouseCusps, ChartType::American);
    std::vector<int> signs;
    for (const SignMark& mark : ring) signs.push_back(mark.sign);
    std::ranges::sort(signs);
    EXPECT_THAT(signs, ::testing::ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12));
    const auto angleOf = [&](int sign) { return std::ranges::find(ring, sign, &SignMark::sign)->angle; };
    EXPECT_EQ(angleOf(5), 195.0);       // Leo begins with the first house
    EXPECT_LT(angleOf(6), angleOf(7));  // Virgo and Libra share the third
    EXPECT_NEAR((angleOf(6) + angleOf(7)) / 2, 255.0, 1e-9);
    EXPECT_EQ(SignRing(chart.HouseCusps, ChartType::European)[4].angle, 180.0 + 135.0 - 122.0);
    for (const ChartType type : {ChartType::American, ChartType::European, ChartType::ZodiacRing}) {
        Draw(type);
        for (int sign = 1; sign <= 12; ++sign) {
            const auto found = Texts(SignGlyph(sign));
            EXPECT_EQ(std::ranges::count_if(found, [](const WheelText& text) { return text.font.bold; }), 1)
                << "sign " << sign << " of type " << static_cast<int>(type);
        }
    }
}

TEST_F(DrawingTest, SignsOnTheLeftStandClearOfTheCircle) {
    chart = SpreadChart(0.0);
    const WheelPlan plan{chart, data, options, kScreenForm, ChartType::European, WindowExtent(1, 1)};
    const WheelText aries = SignRingTexts(plan, surface, {}).front();  // at 195 degrees
    const double width = surface.Measure(aries.text, aries.font).width;
    EXPECT_NEAR(aries.corner.x, 236.0 * CosDeg(195.0) - 20.0 + (20.0 - width) / 2, 1e-9);
}

// Every position of every drawn point, as it stands in the picture: from left to right on flat rays, and in
// the described order along the ray on steep ones.
TEST_F(DrawingTest, LabelsReadDegreesSignMinutesAllTheWayRound) {
    for (const ChartType type : {ChartType::American, ChartType::European, ChartType::ZodiacRing}) {
        for (const float leftLabels : {0.0F, 1.0F}) {
            options[28] = leftLabels;
            chart = SpreadChart(7.2);
            chart.IsRetrograde[kMars] = true;
            const WheelPlan plan{chart, data, options, kScreenForm, type, WindowExtent(1, 1)};
            const auto glyphs = PlaceGlyphs(chart, type);
            for (const PlanetLabel& label : PlanetLabels(plan, surface, glyphs)) {
                const PlacedGlyph glyph = *std::ranges::find(glyphs, label.point, &PlacedGlyph::point);
                const double longitude = chart.PointLongitude[label.point];
                const ZodiacPlace place = SplitZodiac(longitude);
                std::vector<std::string> items = {TwoDigits(place.degrees), SignGlyph(place.sign),
                                                  TwoDigits(place.minutes)};
                const bool leftHouse = leftLabels == 1.0F ? glyph.house <= 2 || glyph.house >= 9
                                                          : glyph.house <= 3 || glyph.house >= 10;
                const bool isLeft =
                    type == ChartType::American ? leftHouse : glyph.angle >= 75.0 && glyph.angle < 255.0;
                if (!isLeft) std::ranges::reverse(items);
                if (label.point == kMars) items.push_back("R");
                items.insert(items.begin(), PointGlyph(label.point));
                std::vector<std::string> drawn;
                double last = 300.0;
                for (const WheelText& text : label.texts) {
                    drawn.push_back(text.text);
                    const Box ink = InkOf(text, surface);
                    const double radius = std::hypot(ink.left + ink.right, ink.top + ink.bottom) / 2;
                    EXPECT_LT(radius, last) << "inwards along the ray";
                    last = radius;
                }
                EXPECT_EQ(drawn, items) << PointName(label.point) << " at " << glyph.angle;
            }
        }
    }
}

// A label on a house line interrupts it: the line runs through no letter, and is whole where none stands.
TEST_F(DrawingTest, HouseLinesSpareTheLabels) {
    for (const ChartType type : {ChartType::American, ChartType::European, ChartType::ZodiacRing}) {
        chart = EqualHouses(100.0);
        for (int point = 1; point <= kChartPointCount; ++point) Put(chart, point, 100.0 + 30.0 * (point % 4));
        Draw(type);
        int spared = 0;
        for (const WheelText& text : surface.texts) {
            const Box ink = InkOf(text, surface);
            const bool inRing = NearestToCentre(ink) > kInnerRadius && FarthestFromCentre(ink) < 190.0;
            if (!inRing) continue;
            for (const auto& line : surface.lines) {
                const Point middle{(line.from.x + line.to.x) / 2, (line.from.y + line.to.y) / 2};
                const bool isHouseLine = line.stroke.width > 0.6 && std::hypot(middle.x, middle.y) > 100.0;
                EXPECT_FALSE(isHouseLine && Crosses({line.from, line.to}, ink, 0.0))
                    << text.text << " in type " << static_cast<int>(type) << ": line from " << line.from.x
                    << ' ' << line.from.y << " to " << line.to.x << ' ' << line.to.y;
            }
            ++spared;
        }
        EXPECT_GT(spared, 30);
    }
}

// On a desktop's ground, light or dark, everything can be told from it; without the option nothing changes.
TEST_F(DrawingTest, ColoursFollowTheDesktopWhenAsked) {
    OrbTable orbs{};
    orbs.fill(4.0F);
    for (const ChartType type : {ChartType::American, ChartType::European, ChartType::ZodiacRing}) {
        for (const int ground : {Rgb(0xFFFFFF), Rgb(0xEFF0F1), Rgb(0x31363B), Rgb(0x000000)}) {
            WheelRequest request = Request(type, 900.0);
            request.orbs = orbs;
            request.desktopGround = ground;
            options[104] = 1.0F;
            Draw(request);
            EXPECT_EQ(surface.background, ground);
            for (const WheelText& text : surface.texts) {
                // A sign of the ring stands on its sector's tint.
                const bool onTint = type == ChartType::ZodiacRing && text.font.bold && text.text[0] < 0;
                EXPECT_GE(Contrast(text.colour, ground), onTint ? 3.0 : 4.5) << text.text;
            }
            for (const auto& line : surface.lines) EXPECT_GE(Contrast(line.stroke.colour, ground), 3.0);
            options[104] = 0.0F;
            EXPECT_EQ(Draw(request).background, kWhite);
        }
    }
}

TEST_F(DrawingTest, SmallPicturesLeaveOutMinutes) {
    const auto numbersInTheRing = [&](double size) {
        Draw(Request(ChartType::European, size));
        return std::ranges::count_if(surface.texts, [&](const WheelText& text) {
            const Box ink = InkOf(text, surface);
            return std::isdigit(text.text[0]) && FarthestFromCentre(ink) < 217.0;
        });
    };
    EXPECT_EQ(numbersInTheRing(400.0), kChartPointCount);
    EXPECT_EQ(numbersInTheRing(700.0), 2 * kChartPointCount);
}

TEST_F(DrawingTest, RingShowsDegreesTrueAnglesAndAllAspectsOfTheOrbsFile) {
    OrbTable orbs = NoOrbs();
    orbs[1] = 2.0F;
    orbs[3] = 1.0F;   // square
    orbs[13] = 3.0F;  // quintile
    for (int point = 1; point <= kChartPointCount; ++point) Put(chart, point, 100.0 + 17.3 * point);
    Put(chart, kSun, 130.0);
    Put(chart, kMoon, 131.0);
    Put(chart, kMars, 130.0 + 72.0);
    Put(chart, kJupiter, 130.0 + 90.0);
    WheelRequest request = Request(ChartType::ZodiacRing, 500.0);
    request.orbs = orbs;
    Draw(request);
    EXPECT_EQ(surface.sectors.size(), 12u);
    EXPECT_NEAR(surface.sectors[4].from, 180.0 + 120.0 - 100.0, 1e-9) << "Leo";
    int ticks = 0;
    for (int degree = 0; degree < 360; ++degree) {
        const double length = degree % 10 == 0 ? 7.0 : degree % 5 == 0 ? 5.0 : 2.8;
        ticks += HasLine(OnWheel(degree + 80.0, 193.0), OnWheel(degree + 80.0, 193.0 - length));
    }
    EXPECT_EQ(ticks, 348) << "none where a sign begins";
    int borders = 0;
    for (int sign = 0; sign < 12; ++sign) {
        const double angle = 30.0 * sign + 80.0;
        borders += HasLine(OnWheel(angle, kRingScaleRadius), OnWheel(angle, kOuterRadius));
    }
    EXPECT_EQ(borders, 12);
    const auto widthOf = [&](double from, double to) {
        for (const auto& line : surface.lines) {
            const auto joins = [&](Point a, Point b) {
                return std::hypot(a.x - OnWheel(from, 97.0).x, a.y - OnWheel(from, 97.0).y) < 1e-6 &&
                       std::hypot(b.x - OnWheel(to, 97.0).x, b.y - OnWheel(to, 97.0).y) < 1e-6;
            };
            if (joins(line.from, line.to) || joins(line.to, line.from)) return line.stroke.width;
        }
        return 0.0;
    };
    const double exact = widthOf(210.0, 282.0);
    const double wide = widthOf(211.0, 282.0);
    EXPECT_GT(exact, wide) << "the closer aspect is heavier";
    EXPECT_GT(wide, 0.0);
    EXPECT_GT(widthOf(210.0, 300.0), exact) << "a major aspect is heavier";
    EXPECT_EQ(widthOf(210.0, 211.0), 0.0) << "a conjunction is an arc";
    const auto arc = std::ranges::count_if(surface.lines, [](const auto& line) {
        return std::abs(std::hypot(line.from.x, line.from.y) - 93.5) < 1e-6 &&
               std::abs(std::hypot(line.to.x, line.to.y) - 93.5) < 1e-6;
    });
    EXPECT_GE(arc, 4);
    for (const double angle : {210.0, 211.0, 282.0}) {
        EXPECT_TRUE(std::ranges::any_of(surface.lines,
                                        [&](const auto& line) {
                                            return std::hypot(line.from.x - OnWheel(angle, 193.0).x,
                                                              line.from.y - OnWheel(angle, 193.0).y) < 1e-6;
                                        }))
            << "the mark at the true angle " << angle;
    }
}

// The glyph of an aspect stands in the middle of its line, on a disc that clears the lines behind it.
TEST_F(DrawingTest, RingAspectsHaveTheirGlyphsOnClearedDiscs) {
    OrbTable orbs = NoOrbs();
    orbs[3] = 1.0F;
    chart = SpreadChart(0.0);
    for (int point = 1; point <= kChartPointCount; ++point) Put(chart, point, 3.0 + 17.3 * point);
    Put(chart, kSun, 130.0);
    Put(chart, kMars, 220.5);
    WheelRequest request = Request(ChartType::ZodiacRing, 700.0);
    request.orbs = orbs;
    Draw(request);
    ASSERT_FALSE(surface.discs.empty());
    for (const auto& disc : surface.discs) {
        const bool clearsGlyph =
            std::ranges::any_of(Texts(AspectGlyph(kSquare)), [&](const WheelText& glyph) {
                const TextBox box = surface.Measure(glyph.text, glyph.font);
                const double half = std::max(box.inkRight - box.inkLeft, box.inkBottom - box.inkTop) / 2;
                return std::abs(glyph.corner.x + (box.inkLeft + box.inkRight) / 2 - disc.centre.x) < 1e-9 &&
                       std::abs(glyph.corner.y - (box.inkTop + box.inkBottom) / 2 - disc.centre.y) < 1e-9 &&
                       disc.radius > half && disc.radius < half + 2.0;
            });
        EXPECT_TRUE(clearsGlyph) << disc.centre.x << ' ' << disc.centre.y << ' ' << disc.radius;
        EXPECT_EQ(disc.colour, surface.background);
    }
}

// In the middle of its cell or from a corner of it, an aspect's letter stays in the row of one point and the
// column of the other.
TEST_F(DrawingTest, GridAspectsStandInTheirCells) {
    OrbTable orbs = NoOrbs();
    orbs[3] = 1.0F;
    for (int point = 1; point <= kChartPointCount; ++point) Put(chart, point, 3.0 + 17.3 * point);
    Put(chart, kSun, 130.0);
    Put(chart, kMars, 220.0);  // fifth of the grid
    for (const std::optional<Point> corner : {std::optional<Point>(), std::optional(Point{3.0, 2.0})}) {
        surface = {};
        AspectGridBlock({chart, options, orbs}, {{10.0, 200.0}, 12.0, 12.0, 9.0, 6.0, corner}).Draw(surface);
        const auto glyphs = Texts(AspectGlyph(kSquare));
        ASSERT_EQ(glyphs.size(), 1u);
        const Extent cell{10.0, 200.0 - 4 * 12.0, 10.0 + 12.0, 200.0 - 5 * 12.0};
        EXPECT_TRUE(Inside(InkOf(glyphs[0], surface), cell)) << corner.has_value();
    }
}

// Every part of a planet's label has a size and a colour of its own, on the screen and on paper.
TEST_F(DrawingTest, PartsOfALabelFollowTheirOptions) {
    chart.IsRetrograde[kMars] = true;
    for (const int first : {72, 82}) {  // planet, degrees, sign, minutes, retrograde; colours 20 or 25 behind
        const int colours = first == 72 ? 92 : 107;
        for (int part = 0; part < 5; ++part) {
            options[first + part] = static_cast<float>(13 - part);
            options[colours + part] = static_cast<float>(part + 1);
        }
        surface = {};
        if (first == 72) {
            DrawWheel(surface, Request(ChartType::American));
        } else {
            DrawPage(surface, {chart, data, options, 0, {}});
        }
        const auto shown = [&](const std::string& text, int part) {
            return std::ranges::any_of(surface.texts, [&](const WheelText& drawn) {
                return drawn.text == text && drawn.font.size == 13.0 - part && drawn.colour == part + 1;
            });
        };
        const ZodiacPlace mars = SplitZodiac(chart.PointLongitude[kMars]);
        EXPECT_TRUE(shown(PointGlyph(kMars), 0)) << first;
        EXPECT_TRUE(shown(TwoDigits(mars.degrees), 1)) << first;
        EXPECT_TRUE(shown(SignGlyph(mars.sign), 2)) << first;
        EXPECT_TRUE(shown(TwoDigits(mars.minutes), 3)) << first;
        EXPECT_TRUE(shown("R", 4)) << first;
    }
}

TEST_F(DrawingTest, GridColoursGoByFamily) {
    for (int family = 0; family < 7; ++family) options[181 + family] = static_cast<float>(family + 1);
    const std::pair<int, std::vector<AspectCode>> families[] = {
        {1, {kConjunction, kParallel}},    {2, {kSextile, kTrine}},
        {3, {kSquare, kOpposition}},       {4, {kSemiSextile, kQuincunx}},
        {5, {kSemiSquare, kSesquisquare}}, {6, {kSemiQuintile, kQuintile, kTrecile, kBiQuintile}},
        {7, {kNonagen, kSeptile}}};
    for (const auto& [colour, codes] : families) {
        for (const AspectCode code : codes) EXPECT_EQ(GridColour(options, code), colour) << code;
    }
}

TEST_F(DrawingTest, ElementsAndQualitiesHoldTheirPoints) {
    const std::array kCells = {kSun,    kMoon,   kMercury, kVenus, kMars,      kJupiter,
                               kSaturn, kUranus, kNeptune, kPluto, kAscendant, kMidheaven};
    chart = EqualHouses(0.0);
    for (int sign = 0; sign < 12; ++sign)
        Put(chart, kCells[static_cast<std::size_t>(sign)], 30.0 * sign + 15.0);
    const OrbTable orbs{};
    const BlockSource source{chart, options, orbs};
    const TextBlock table = ElementTable(source, surface, 10.0);
    const auto find = [&](const std::string& text) {
        const auto at = std::ranges::find(table.texts, text, &WheelText::text);
        if (at == table.texts.end()) throw std::runtime_error("no " + text);
        return Point{at->corner.x + surface.Measure(text, at->font).width / 2,
                     at->corner.y - surface.Measure(text, at->font).height / 2};
    };
    const std::array kElements = {"Fire", "Earth", "Air", "Water"};
    const std::array kQualities = {"Cardinal", "Fixed", "Mutable"};
    for (std::size_t sign = 0; sign < 12; ++sign) {
        const Point point = find(PointGlyph(kCells[sign]));
        EXPECT_NEAR(point.y, find(kElements[sign % 4]).y, 0.5) << sign;
        EXPECT_NEAR(point.x, find(kQualities[sign % 3]).x, 0.5) << sign;
    }
}

TEST_F(DrawingTest, WordsTellPlaceHouseAndTheAspectsOfThePicture) {
    OrbTable orbs{};
    orbs[1] = 2.0F;
    chart = SpreadChart(0.5);
    Put(chart, kSun, 3.2);
    Put(chart, kMoon, 4.2);
    Put(chart, kMercury, 63.0);
    Put(chart, kMars, 123.5);
    chart.IsRetrograde[kMercury] = true;
    WheelRequest request = Request(ChartType::ZodiacRing, 700.0);
    request.orbs = orbs;
    EXPECT_EQ(PointInWords(request, kSun), "Sun 03 Aries 12, house 1. Conjunct Moon.");
    EXPECT_THAT(PointTip(request, kSun), ::testing::HasSubstr("Conjunct Moon  1\xC2\xB0"
                                                              "00'"));
    EXPECT_THAT(PointInWords(request, kMercury), ::testing::HasSubstr(", retrograde."));
    request.type = ChartType::American;
    EXPECT_EQ(PointInWords(request, kSun), "Sun 03 Aries 12, house 1. Sextile Mercury, Trine Mars.")
        << "the lines of the picture";
    const std::string all = WheelInWords(request);
    EXPECT_LT(all.find("House 1, cusp 00 Aries 30. Sun"), all.find("House 2, cusp"));
    for (const std::string_view name : kGridNames) EXPECT_NE(all.find(name), std::string::npos) << name;
}

TEST(PrintedPage, ExtentHasTheWheelAboveTheMiddle) {
    const Extent american = PageExtent(8.0, 10.0, 0);
    EXPECT_NEAR(american.left, 16.0 - 265.0, 1e-9);
    EXPECT_NEAR(american.right, 16.0 + 265.0, 1e-9);
    EXPECT_NEAR(american.top, 1.25 * 265.0 - 67.0, 1e-9);
    EXPECT_NEAR(american.bottom, -1.25 * 265.0 - 67.0, 1e-9);
    EXPECT_NEAR(PageExtent(8.0, 10.0, 2).right, 16.0 + 272.0, 1e-9);
    const Extent squat = PageExtent(10.0, 10.0, 0);
    EXPECT_NEAR(squat.top - squat.bottom, 2.5 * 265.0, 1e-9) << "a squat page still shows the blocks below";
}

TEST_F(DrawingTest, PageBlocksFollowTheirOptions) {
    const auto draw = [&] {
        surface = {};
        PageRequest page{chart, data, options, 0, {"Ann Smith, Astrologer"}};
        page.orbs.fill(1.0F);
        DrawPage(surface, page);
    };
    draw();
    const auto block = Texts("Ann Smith, Astrologer");
    ASSERT_EQ(block.size(), 1u);
    EXPECT_NEAR(block[0].corner.x + surface.Measure(block[0].text, block[0].font).width / 2, 16.0, 1e-9);
    const std::size_t withGrid = surface.lines.size();
    options[178] = 0.0F;
    draw();
    EXPECT_EQ(withGrid - surface.lines.size(), 33u)
        << "the grid's rules and the one below the points' heading";
    const ScratchDirectory directory;
    directory.Write("personal.nam", "Ann\r\n\r\n");
    EXPECT_THAT(ReadPersonalLines(directory / "PERSONAL.NAM", options), ::testing::ElementsAre("Ann"));
    options[174] = 0.0F;
    EXPECT_THAT(ReadPersonalLines(directory / "PERSONAL.NAM", options), ::testing::IsEmpty());
}

}  // namespace
}  // namespace tolvanis
