// Lists of files to choose from.

#include "platform/directory_list.h"

#include <gtest/gtest.h>

#include "platform/screen_constants.h"
#include "support.h"

namespace tolvanis {
namespace {

TEST(DirectoryList, PatternsIgnoreLetterCase) {
    const struct {
        const char *name, *pattern;
        bool fits;
    } cases[] = {{"NAMES.FIL", "*.FIL", true}, {"names.fil", "*.FIL", true}, {"names.fill", "*.FIL", false},
                 {"A.B.FIL", "*.FIL", true},   {".FIL", "*.FIL", true},      {"A.LL", "*.FIL; *.ll", true},
                 {"A.TXT", "?.TXT", true},     {"AB.TXT", "?.TXT", false},   {"ANYTHING", "*", true},
                 {"aXbXc", "a*b*d", false},    {"", "*.FIL", false}};
    for (const auto& test : cases) EXPECT_EQ(FitsPattern(test.name, test.pattern), test.fits) << test.name;
}

TEST(DirectoryList, ListsFilesAndDirectoriesApart) {
    const ScratchDirectory directory;
    directory.Write("b.fil", "");
    directory.Write("A.FIL", "");
    directory.Write("A.TXT", "");
    std::filesystem::create_directory(directory.path() / "X.FIL");
    std::filesystem::create_directory(directory.path() / ".hidden");
    directory.Write("caf\xE9.FIL", "in another encoding");
    const std::vector<std::string> files = FilesIn(directory.path(), "*.FIL");
    EXPECT_EQ(files, (std::vector<std::string>{"A.FIL", "b.fil"}));
    EXPECT_EQ(DirectoriesIn(directory.path()), std::vector<std::string>{"X.FIL"});
    EXPECT_EQ(IndexOfPathEnd(files, "C:\\DATA\\B.FIL"), 1U);
    EXPECT_EQ(IndexOfPathEnd(files, "/elsewhere/C.FIL"), 0U);
    EXPECT_TRUE(FilesIn(directory.path() / "gone", "*").empty());
    EXPECT_EQ(JoinPathText("/", "A.FIL"), "/A.FIL");
    EXPECT_EQ(JoinPathText("C:\\DATA\\", "A.FIL"), "C:\\DATA\\A.FIL");
}

TEST(ScreenConstants, FollowTheScreen) {
    const struct {
        int width;
        double dpi;
        int windowWidth;
        double step;
    } cases[] = {{640, 96, 8490, 1.5},    {640, 120, 8490, 1.5},  {800, 96, 10725, 1.5},
                 {800, 120, 8400, 1.2},   {1920, 96, 14050, 1.5}, {1920, 120, 10970, 1.2},
                 {3840, 192, 10970, 1.2}, {1024, 0, 14050, 1.5}};
    for (const auto& test : cases) {
        const ScreenConstants screen = ScreenConstantsFor(test.width, test.dpi);
        EXPECT_EQ(screen.windowWidth, test.windowWidth) << test.width << " at " << test.dpi;
        EXPECT_EQ(screen.fontStep, test.step) << test.width << " at " << test.dpi;
        EXPECT_GT(screen.twipsPerPixel, 0.0);
    }
}

}  // namespace
}  // namespace tolvanis
