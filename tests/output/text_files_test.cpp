// Listings as files: page breaks, proposed names, and text files shown as listings.

#include "output/text_files.h"

#include <gtest/gtest.h>

#include "output/data_view.h"
#include "support.h"

namespace tolvanis {
namespace {

// Indices of the lines that hold only a form feed.
std::vector<std::size_t> FormFeeds(const std::string& text) {
    std::vector<std::size_t> found;
    std::size_t line = 0;
    for (std::size_t at = 0; at < text.size(); at = text.find("\r\n", at) + 2, ++line) {
        if (text.compare(at, 3, "\f\r\n") == 0) found.push_back(line);
    }
    return found;
}

TEST(SavedListing, BreaksPagesByTheOptionAndEndsWithAFormFeed) {
    const std::vector<std::string> lines(130, "x");
    // After the lines 59 and 118, and after the last of 131 lines; each break moves the later ones on.
    EXPECT_EQ(FormFeeds(SavedListing(lines, 60)), (std::vector<std::size_t>{60, 120, 133}));
    for (const double tooFew : {1.9, 0.0, -5.0, -1e30}) {
        EXPECT_EQ(FormFeeds(SavedListing(lines, tooFew)), (std::vector<std::size_t>{131})) << tooFew;
    }
    EXPECT_EQ(SavedListing(std::vector<std::string>{"a"}, 2), "a\r\n\r\n\f\r\n\f\r\n");
}

TEST(ProposedFileName, IsTheFirstWordCutToEightCharacters) {
    const struct {
        const char *person, *file;
    } cases[] = {{"Ann Smith", "Ann.DOC"},
                 {"Bartholomew", "Bartholo.DOC"},
                 {"Christopher Doe", "Christop.DOC"},
                 {"Zo\u00eb-\u00c9lodie-Anne", "Zo\u00eb-\u00c9lod.DOC"},
                 {"../x", ".._x.DOC"},
                 {"A\\B:*?\"<>|", "A_B_____.DOC"},
                 {"", "CHART.DOC"},
                 {" Ann", "CHART.DOC"}};
    for (const auto& test : cases) EXPECT_EQ(ProposedFileName(test.person, ".DOC"), test.file);
}

TEST(ListTextFile, ReplacesTheListingOnlyWhenTheFileCanBeRead) {
    const ScratchDirectory directory;
    directory.Write("A.TXT", "one\r\ntwo");
    directory.Write("EMPTY.TXT", "");
    DataBuffer buffer;
    buffer.AppendLine("chart");
    EXPECT_FALSE(ListTextFile(buffer, directory.path() / "B.TXT"));
    EXPECT_EQ(*ListTextFile(buffer, directory.path() / "EMPTY.TXT"), 0);
    EXPECT_EQ(buffer.ListingLines(), std::vector<std::string>{"chart"});
    EXPECT_EQ(*ListTextFile(buffer, directory.path() / "a.txt"), 2);
    EXPECT_EQ(buffer.ListingLines(), (std::vector<std::string>{"one", "two", ""}));
    EXPECT_EQ(buffer.BufferLineCount(), 4U);
}

TEST(DataView, FontStepsStopAtTheirLimits) {
    DataViewSettings view;
    view.FontSize = 11.5;
    IncreaseFont(view, 1.5);
    EXPECT_EQ(view.FontSize, 12.25);
    EXPECT_FALSE(CanIncreaseFont(view));
    view.FontSize = 8.5;
    DecreaseFont(view, 1.2);
    EXPECT_DOUBLE_EQ(view.FontSize, 7.9);
    EXPECT_FALSE(CanDecreaseFont(view));
    view.FontSize = 1e300;  // from a damaged settings file
    DecreaseFont(view, 1.2);
    EXPECT_DOUBLE_EQ(view.FontSize, 71.4);
}

}  // namespace
}  // namespace tolvanis
