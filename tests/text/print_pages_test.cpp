// Texts cut into printed pages.

#include "text/print_pages.h"

#include <gtest/gtest.h>

namespace tolvanis {
namespace {

std::vector<std::size_t> Sizes(const std::vector<std::string>& lines, double linesPerPage) {
    std::vector<std::size_t> sizes;
    for (const auto& page : SplitIntoPages(lines, linesPerPage)) sizes.push_back(page.size());
    return sizes;
}

TEST(PrintPages, FillEverySheet) {
    using S = std::vector<std::size_t>;
    EXPECT_EQ(Sizes(std::vector<std::string>(130, "x"), 60), (S{60, 60, 10}));
    EXPECT_EQ(Sizes(std::vector<std::string>(120, "x"), 60), (S{60, 60}));
    EXPECT_EQ(Sizes(std::vector<std::string>(130, "x"), 0), (S{130}));
    EXPECT_EQ(Sizes({}, 60), S{});
    EXPECT_EQ(Sizes({"a", "", "  ", ""}, 1), (S{1})) << "no empty sheet at the end";
    EXPECT_EQ(Sizes({"", "a"}, 60), (S{2})) << "empty lines inside stay";
}

TEST(PrintPages, AFormFeedEndsAPage) {
    const auto pages = SplitIntoPages(std::vector<std::string>{"a", "\f", "b", "c\fd", "\f"}, 60);
    ASSERT_EQ(pages.size(), 3U);
    EXPECT_EQ(pages[0], (std::vector<std::string>{"a"}));
    EXPECT_EQ(pages[1], (std::vector<std::string>{"b", "c"}));
    EXPECT_EQ(pages[2], (std::vector<std::string>{"d"}));
}

TEST(PrintPages, OneLongLineMakesTheWholeTextSmall) {
    const std::vector<std::string> fits = {std::string(80, 'x')};
    const std::vector<std::string> tooLong = {"a", std::string(81, 'x')};
    EXPECT_EQ(PrintPointSize(HasLongLine(fits, 80)), 12);
    EXPECT_EQ(PrintPointSize(HasLongLine(tooLong, 80)), 10);
    std::string accented;
    for (int i = 0; i < 80; ++i) accented += "\u00e9";
    EXPECT_FALSE(HasLongLine(std::vector<std::string>{accented}, 80)) << "characters count, not bytes";
    EXPECT_FALSE(HasLongLine(tooLong, 0));
}

}  // namespace
}  // namespace tolvanis
