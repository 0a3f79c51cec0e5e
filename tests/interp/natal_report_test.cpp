// The report line by line, from texts and charts laid out for it.

#include "interp/natal_report.h"

#include <gmock/gmock.h>

#include "interp/report_pages.h"
#include "output/text_files.h"
#include "support.h"

namespace tolvanis {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

class NatalReport : public testing::Test {
  protected:
    NatalReport() {
        chart_.natal = NatalOf("Zoë Smith,22 Sep 1949,9.05,A,5,073.59,40.45");
        for (int point = 1; point <= kChartPointCount; ++point) Place(point, 0.0, 1);
        options_[29] = 5;
        options_[31] = 66;
    }

    void Place(int point, double longitude, int house) {
        chart_.positions.PointLongitude[point] = longitude;
        chart_.positions.PointHouse[point] = house;
    }

    std::vector<std::string> Lines() {
        BuildNatalReport(report_, {chart_, options_, texts_, personal_});
        std::vector<std::string> lines;
        for (int n = 0; n < report_.LineCount(); ++n) lines.emplace_back(report_.Line(n));
        return lines;
    }

    // Behind the title page and the empty line that follows it.
    std::vector<std::string> Body() {
        std::vector<std::string> lines = Lines();
        lines.erase(lines.begin(), lines.begin() + 62);
        return lines;
    }

    // The lines of the body that are not empty.
    std::vector<std::string> Texts() {
        std::vector<std::string> lines = Body();
        std::erase(lines, "");
        return lines;
    }

    ScratchDirectory directory_;
    DataFiles texts_ = DataFiles(directory_.path());
    NatalChart chart_;
    Options options_;
    std::vector<std::string> personal_;
    ReportBuffer report_;
};

TEST_F(NatalReport, TitlePageFillsOnePageWithThePersonalBlockAtItsFoot) {
    personal_ = {"Ann Öst", "", std::string(90, 'x')};
    const std::vector<std::string> lines = Lines();
    std::vector<std::string> page(61);
    page[5] = std::string(32, ' ') + "NATAL REPORT FOR";
    page[7] = std::string(36, ' ') + "ZOË SMITH";
    page[10] = std::string(5, ' ') + "  22 SEP 1949    TZ = 5.0      9.05 A.M.   40.45 NORTH    73.59 WEST";
    page[58] = std::string(37, ' ') + "Ann Öst";
    page[59] = std::string(40, ' ');
    page[60] = std::string(90, 'x');
    ASSERT_EQ(lines.size(), 72U) << "eleven empty lines without any text";
    EXPECT_THAT(std::vector(lines.begin(), lines.begin() + 61), ElementsAreArray(page));
    options_[31] = 10;
    EXPECT_EQ(Lines().size(), 11U + 3 + 11) << "a block too long for the page follows at once";
    chart_.natal.Name = std::string(81, 'x');
    EXPECT_EQ(Lines()[7], std::string(81, 'X'));
}

TEST_F(NatalReport, CopiesTheTextsInTheirOrder) {
    const struct {
        const char *name, *content;
    } files[] = {{"philo.hlp", "philo\r\n*\r\n"},
                 {"ASCSIGN.TXT", "ascsign"},
                 {"Rising.txt", "ARIES RISING\nfirst\n*\nLeo rising\nlast\n*\n"},
                 {"SIGN.TXT", "sign\n"},
                 {"SIGN_ARI.TXT", "Moon in\nx\n*\nSun in Aries\ny\n[]\nPluto in\nno\n*\n"},
                 {"SIGN_TAU.TXT", "Neptune in\ncut short"},
                 {"HOUSE.TXT", "house\n"},
                 {"HOUSE_1.TXT", "Venus in the 1st\n*\n"},
                 {"HOUSE_12.TXT", "Mars in the 12th\n*\n"},
                 {"ASPECT.TXT", "aspect\n"},
                 {"Sun.TXT", "Sun blending with Moon\n*\nSun harmonizing with Moon\n*\n"},
                 {"MOON.TXT", "Moon blending with Sun\n*\nMoon discordant to Neptune\n*\n"},
                 {"NEPTUNE.TXT", "Neptune blending with Pluto\n*\n"},
                 {"CLOSING.TXT", "closing\n"}};
    for (const auto& file : files) directory_.Write(file.name, file.content);
    Place(kNeptune, 30.0, 2);
    Place(kMars, 359.99, 12);
    chart_.aspects.Add({1, 2, kTrine, 120.0, 0.0});
    chart_.aspects.Add({1, 2, kConjunction, 0.0, 0.0});
    chart_.aspects.Add({2, 9, kOpposition, 180.0, 0.0});
    chart_.aspects.Add({9, 10, kConjunction, 0.0, 0.0});
    EXPECT_THAT(Body(), ElementsAre("", "philo", "*", "",                            //
                                    "ascsign", "",                                   //
                                    "ARIES RISING", "first", "", "",                 //
                                    "sign", "",                                      //
                                    "Sun in Aries", "y", "", "Moon in", "x", "",     //
                                    "Neptune in", "cut short",                       //
                                    "", "house", "",                                 //
                                    "Venus in the 1st", "", "Mars in the 12th", "",  //
                                    "", "aspect", "",                                //
                                    "Sun blending with Moon", "", "Sun harmonizing with Moon", "",
                                    "Moon discordant to Neptune", "",  //
                                    "", "closing"));
}

TEST_F(NatalReport, FindsEverySignAndHouse) {
    for (int n = 1; n <= 12; ++n) {
        const std::string sign(SignName(n));
        directory_.Write("RISING.TXT", sign + " rising\n*\n");
        directory_.Write("SIGN_" + std::string(SignAbbreviation(n)) + ".TXT", "sun in " + sign + "\n*\n");
        directory_.Write("HOUSE_" + std::to_string(n) + ".TXT", "sun in " + std::to_string(n) + "\n*\n");
        for (const double degree : {0.0, 29.99}) {
            Place(kAscendant, 30.0 * (n - 1) + degree, 1);
            Place(kSun, 30.0 * (n - 1) + degree, n);
            EXPECT_THAT(Texts(),
                        ElementsAre(sign + " rising", "sun in " + sign, "sun in " + std::to_string(n)));
        }
    }
}

TEST_F(NatalReport, EveryMissingFileLeavesOnlyAGap) {
    for (const char* name : {"PHILO.HLP", "ASCSIGN.TXT", "SIGN.TXT", "HOUSE.TXT", "ASPECT.TXT"}) {
        directory_.Write(name, "text\n");
    }
    std::filesystem::create_directory(directory_ / "CLOSING.TXT");
    const std::size_t whole = Body().size();
    for (const char* name : {"PHILO.HLP", "ASCSIGN.TXT", "SIGN.TXT", "HOUSE.TXT", "ASPECT.TXT"}) {
        std::filesystem::remove(directory_.path() / name);
        EXPECT_EQ(Body().size(), whole - 1) << name;
        directory_.Write(name, "text\n");
    }
    const Path personalBlock = directory_.Write("PERSONAL.NAM", "Ann \r\nHome\r\n\r\n");
    EXPECT_THAT(ReadPersonalBlock(personalBlock), ElementsAre("Ann ", "Home", ""));
    EXPECT_TRUE(ReadPersonalBlock(directory_ / "none").empty());
}

TEST_F(NatalReport, StopsWhereTheBufferIsFull) {
    std::string many;
    for (int i = 0; i < 20000; ++i) many += "x\n";
    directory_.Write("SIGN.TXT", many);
    Lines();
    EXPECT_FALSE(report_.overflowed());
    directory_.Write("HOUSE.TXT", many);
    Lines();
    EXPECT_TRUE(report_.overflowed());
    EXPECT_EQ(report_.LineCount(), 32767);
    EXPECT_EQ(report_.Line(32767), "");
}

TEST_F(NatalReport, ProgressGrowsFromATenthToNineTenths) {
    struct Noted : ReportProgress {
        std::vector<double> steps;
        void Open() override { steps.push_back(0.0); }
        void SetBar(double fraction) override { steps.push_back(fraction); }
        void Close() override { steps.push_back(1.0); }
    } noted;
    BuildNatalReport(report_, {chart_, options_, texts_, personal_}, &noted);
    EXPECT_THAT(noted.steps, ElementsAre(0.0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1.0));
}

}  // namespace
}  // namespace tolvanis
