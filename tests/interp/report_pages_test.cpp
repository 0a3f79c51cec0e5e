// The report on screens and pages, and what is found in it.

#include "interp/report_pages.h"

#include <gmock/gmock.h>

namespace tolvanis {
namespace {

// "line 0" to "line n-1".
ReportBuffer Numbered(int n) {
    ReportBuffer report;
    for (int i = 0; i < n; ++i) report.AppendLine("line " + std::to_string(i));
    return report;
}

const std::string kFooter = std::string(37, ' ') + "Page ";

TEST(ReportPages, HaveMarginsAndNumberedFooters) {
    const std::vector<ReportPage> pages = PaginateReport(Numbered(150), {61, 3});
    ASSERT_EQ(pages.size(), 3U);
    for (const ReportPage& page : pages) EXPECT_EQ(page.size(), 66U);
    EXPECT_EQ(pages[0][60], "line 60");
    EXPECT_EQ(pages[0][65], "") << "the title page has no number";
    EXPECT_THAT(std::vector(pages[1].begin(), pages[1].begin() + 4),
                testing::ElementsAre("", "", "", "line 61"));
    EXPECT_EQ(pages[1][60], "line 118");
    EXPECT_EQ(pages[1][65], kFooter + "2");
    EXPECT_EQ(pages[2][3], "line 119");
    EXPECT_EQ(pages[2][65], kFooter + "3");
}

TEST(ReportPages, SavedPagesEndInAFormFeed) {
    // Lines 0 to N in pages of four lines, the last line being the empty one.
    const struct {
        int lines, topMargin;
        std::string saved;
    } cases[] = {
        {1, 1, "line 0\n\n\n\n\n\n\n\n" + kFooter + "1\n\f\n"},
        {1, 2, "line 0\n\n\f\n"},  // no further than a margin would reach: no footer
        {1, 0, "line 0\n\n\n\n\n\n\n\n" + kFooter + "1\n\f\n"},
        {3, 0, "line 0\nline 1\nline 2\n\n\n\n\n\n\n\f\n\f\n"},
        {3, 2, "line 0\nline 1\nline 2\n\n\n\n\n\n\n\f\n\n\n\f\n"},
        {4, 2, "line 0\nline 1\nline 2\nline 3\n\n\n\n\n\n\f\n\n\n\n\n\n\n\n\n" + kFooter + "2\n\f\n"},
        {5, -3, "line 0\nline 1\nline 2\nline 3\n\n\n\n\n\n\f\nline 4\n\n\n\n\n\n\n\n" + kFooter + "2\n\f\n"},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(SavedReport(Numbered(test.lines), {4, test.topMargin}, "\n"), test.saved)
            << test.lines << " " << test.topMargin;
    }
    EXPECT_EQ(SavedReport(Numbered(1), {0, 3}, "\r\n"), "line 0\r\n\r\n\f\r\n") << "pages without an end";
}

TEST(ReportPages, PrintingNeedsNoEmptySheet) {
    EXPECT_EQ(PrintedReport(Numbered(3), {4, 0}).size(), 1U);
    EXPECT_EQ(PrintedReport(Numbered(3), {4, 2}).size(), 1U);
    EXPECT_EQ(PrintedReport(Numbered(4), {4, 2}).size(), 2U);
}

TEST(ReportPages, FormFollowsTheOptions) {
    Options options;
    options[29] = 5;
    options[31] = 66;
    options[32] = 2.5F;
    EXPECT_EQ(ReportPageFormOf(options).lines, 61);
    EXPECT_EQ(ReportPageFormOf(options).topMargin, 2);
}

TEST(ReportScreen, MovesWithinTheReport) {
    const ReportBuffer report = Numbered(30);
    const struct {
        int top, lines, newTop;
        bool redraws;
    } cases[] = {{0, 23, 23, true}, {23, 23, 23, false}, {8, 1, 9, true},   {9, 1, 9, false},
                 {5, -23, 0, true}, {0, -1, 0, true},    {29, -1, 28, true}};
    for (const auto& test : cases) {
        ReportScreen screen(report);
        screen.GoTo(test.top);
        EXPECT_EQ(screen.Move(test.lines), test.redraws) << test.top << " " << test.lines;
        EXPECT_EQ(screen.top(), test.newTop) << test.top << " " << test.lines;
    }
    ReportScreen screen(report);
    EXPECT_TRUE(screen.Text().starts_with("line 0\r\n"));
    EXPECT_TRUE(screen.Text().ends_with("line 22\r\n"));
    screen.GoTo(29);
    EXPECT_EQ(screen.Text(), "line 29\r\n\r\n");
}

TEST(FindInReport, FindsAcrossLinesInBothDirectionsAndRoundTheEnd) {
    ReportBuffer report;
    for (const char* line : {"Sun in Aries", "the Évening", "sky", "", "sun"}) report.AppendLine(line);
    const struct {
        const char* text;
        int from;
        SearchDirection direction;
        ReportPlace place;
    } cases[] = {{"SUN", 0, SearchDirection::Forward, {0, 0}},
                 {"sun", 1, SearchDirection::Forward, {4, 0}},
                 {"sun", 5, SearchDirection::Forward, {0, 0}},
                 {"sun", -1, SearchDirection::Backward, {4, 0}},
                 {"sun", 3, SearchDirection::Backward, {0, 0}},
                 {"aries the", 0, SearchDirection::Forward, {0, 7}},
                 {"vening", 0, SearchDirection::Forward, {1, 5}},
                 {"éVENING SKY", 0, SearchDirection::Forward, {1, 4}}};
    for (const auto& test : cases) {
        ReportPlace place;
        EXPECT_TRUE(FindInReport(report, test.text, test.from, test.direction, place)) << test.text;
        EXPECT_EQ(place, test.place) << test.text << " " << test.from;
    }
    ReportPlace place;
    EXPECT_FALSE(FindInReport(report, "moon", 0, SearchDirection::Forward, place));
    EXPECT_FALSE(FindInReport(report, "", 0, SearchDirection::Forward, place));
    EXPECT_FALSE(FindInReport(ReportBuffer(), "sun", 0, SearchDirection::Forward, place));
}

}  // namespace
}  // namespace tolvanis
