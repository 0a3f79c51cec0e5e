// The wheel's files: its tables and the orbs, whole, short, long and damaged.
#include <gmock/gmock.h>

#include "aspects/orbs_file.h"
#include "wheel/aspect_list.h"
#include "wheel/symbols.h"
#include "wheel/wheel_support.h"

namespace tolvanis {
namespace {

std::string Numbers(int count, const char* separator) {
    std::string text;
    for (int i = 0; i < count; ++i) text += std::to_string(i - 50) + separator;
    return text;
}

TEST(WheelTables, ReadAnySeparatorAndStopAtTheirEnd) {
    const ScratchDirectory directory;
    directory.Write("hcdata.dat", Numbers(60, ",") + "\r\n" + Numbers(90, "\n"));
    directory.Write("RADIUS.DAT", Numbers(400, " ,\r\n"));
    const auto data = ReadWheelData(DataFiles(directory.path()));
    ASSERT_TRUE(data) << data.message();
    EXPECT_EQ(data->cuspLabels[59], 9);
    EXPECT_EQ(data->cuspLabels[60], -50);
    EXPECT_EQ(data->cuspLabels[120], 10);
    EXPECT_EQ(data->radius[360], 310);
}

TEST(WheelTables, MissingAndShortFilesAreNamed) {
    const ScratchDirectory directory;
    EXPECT_THAT(
        ReadWheelData(DataFiles(directory.path())).message(),
        ::testing::AllOf(::testing::StartsWith("Cannot read the file "), ::testing::HasSubstr("HCDATA.DAT")));
    directory.Write("HCDATA.DAT", Numbers(120, "\n"));
    EXPECT_THAT(ReadWheelData(DataFiles(directory.path())).message(), ::testing::HasSubstr("RADIUS.DAT"));
    directory.Write("RADIUS.DAT", Numbers(360, "\n"));
    EXPECT_THAT(ReadWheelData(DataFiles(directory.path())).message(), ::testing::HasSubstr("360 numbers"));
}

TEST(WheelTables, DeliveredGlyphsLieInTheRingAndLabelsOutsideTheCircle) {
    const WheelData data = DeliveredWheelData();
    for (const int radius : data.radius) {
        EXPECT_GT(radius, 190);
        EXPECT_LE(radius, 217);
    }
    for (std::size_t i = 0; i < 120; i += 2) {
        EXPECT_GT(std::hypot(data.cuspLabels[i], data.cuspLabels[i + 1]), kOuterRadius) << i;
    }
}

TEST(OrbsFile, HoldsSeventeenLines) {
    const ScratchDirectory directory;
    std::string seventeen;
    for (int i = 1; i <= 17; ++i) seventeen += std::to_string(i) + ".5\r\n";
    OrbTable orbs{};
    EXPECT_TRUE(ReadOrbsFile(directory.Write("T.ORB", seventeen + "\r\n1\r\n"), orbs))
        << "an empty line ends it";
    EXPECT_EQ(orbs[17], 17.5F);
    EXPECT_TRUE(ReadOrbsFile(directory.Write("T.ORB", "8.0    conjunction\r\n"), orbs));
    EXPECT_EQ(orbs[1], 8.0F);
    EXPECT_EQ(orbs[2], 2.5F) << "what a short file does not name stays";
    const Path tooLong = directory.Write("T.ORB", seventeen + "1\r\n");
    EXPECT_THAT(ReadOrbsFile(tooLong, orbs).message(), ::testing::HasSubstr("18 lines"));
    EXPECT_THAT(ReadOrbsFile(directory / "NONE.ORB", orbs).message(), ::testing::HasSubstr("NONE.ORB"));
}

TEST(AspectList, EveryAspectTwiceAndTheConjunctionWins) {
    WheelSnapshot chart;
    for (int point = 1; point <= kChartPointCount; ++point) chart.PointLongitude[point] = 23.0 * point;
    OrbTable orbs{};
    EXPECT_EQ(ListAspects(chart, orbs).size(), 0u);
    chart.PointLongitude[kMoon] = chart.PointLongitude[kSun] + 0.5;
    orbs[1] = 8.0F;
    orbs[7] = 40.0F;  // a semi-sextile that reaches everything near
    const auto aspects = ListAspects(chart, orbs);
    ASSERT_FALSE(aspects.empty());
    EXPECT_EQ(aspects[0].first, kSun);
    EXPECT_EQ(aspects[0].second, kMoon);
    EXPECT_EQ(aspects[0].code, kConjunction);
    EXPECT_EQ(aspects.size() % 2, 0u);
    EXPECT_TRUE(AspectListText(aspects).starts_with(
        "  " + PointGlyph(kSun) + " " + AspectGlyph(kConjunction) + " " + PointGlyph(kMoon) + "\n"));
}

TEST(AspectList, SeptileAndOppositionAtTheirBounds) {
    const struct {
        double separation;
        std::size_t slot;
        float orb;
        int code;
    } cases[] = {{51.5, 16, 0.1F, kSeptile},  {52.0, 16, 0.1F, kNoAspect},   {178.0, 5, 2.0F, kOpposition},
                 {177.9, 5, 2.0F, kNoAspect}, {180.0, 5, 0.0F, kOpposition}, {144.0, 15, 0.0F, kBiQuintile}};
    for (const auto& c : cases) {
        WheelSnapshot chart;
        chart.PointLongitude[kMoon] = c.separation;
        OrbTable orbs = NoOrbs();
        EXPECT_EQ(ListAspects(chart, orbs).size(), 0u) << c.separation;
        orbs[c.slot] = c.orb;
        const auto aspects = ListAspects(chart, orbs);
        const auto moon = std::ranges::find(aspects, kMoon, &ListedAspect::first);
        EXPECT_EQ(moon == aspects.end() ? kNoAspect : moon->code, c.code) << c.separation;
    }
}

}  // namespace
}  // namespace tolvanis
