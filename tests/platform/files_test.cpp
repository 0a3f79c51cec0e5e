#include "platform/files.h"

#include <gmock/gmock.h>

#include "platform/clock.h"
#include "support.h"

namespace tolvanis {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
namespace fs = std::filesystem;

TEST(Files, LinesEndInAnyWay) {
    const ScratchDirectory directory;
    const auto path = directory.Write("a.txt", "\xEF\xBB\xBFone\r\ntwo\n\r\nZo\xEB\r\nlast");
    const auto lines = ReadLines(path);
    ASSERT_TRUE(lines);
    EXPECT_THAT(*lines, ElementsAre("one", "two", "", "Zoë", "last"));
    EXPECT_TRUE(ReadLines(directory.Write("empty", ""))->empty());
}

TEST(Files, WhatCannotBeReadIsNamed) {
    const ScratchDirectory directory;
    EXPECT_THAT(ReadLines(directory / "NONE.TXT").message(), HasSubstr("NONE.TXT: No such file"));
    EXPECT_THAT(ReadLines(directory.path()).message(), HasSubstr("Is a directory"));
    EXPECT_THAT(ReadBytes(directory.path()).message(), HasSubstr("Is a directory"));
}

TEST(Files, FoundWithoutRegardToCaseAndSeparator) {
    const ScratchDirectory directory;
    fs::create_directory(directory / "Sub");
    const auto path = directory.Write("Sub/Sign_Lib.txt", "x");
    EXPECT_EQ(FindFile(directory.path(), "\\SUB\\SIGN_LIB.TXT"), path);
    EXPECT_EQ(FindPath(directory.path().string() + "\\sub\\sign_lib.TXT"), path);
    EXPECT_EQ(FindFile(directory.path(), "NONE.TXT"), directory / "NONE.TXT");
    directory.Write("Sub/SIGN_LIB.TXT", "y");
    EXPECT_EQ(FindFile(directory / "Sub", "SIGN_LIB.TXT"), directory / "Sub/SIGN_LIB.TXT")
        << "as written wins";
    EXPECT_EQ(FileNamePart("c:\\data\\Names.fil"), "Names.fil");
    EXPECT_EQ(FileNamePart("Names.fil"), "Names.fil");
}

TEST(Files, NumberLinesStopAtTheFirstEmptyOne) {
    const ScratchDirectory directory;
    std::array<float, 5> values = {9, 9, 9, 9, 9};
    const auto path = directory.Write("n", "  12.5 label\r\nletters\r\n1234567890\r\n\r\n4\r\n");
    EXPECT_EQ(*ReadNumberLines(path, values), 3);
    EXPECT_THAT(values, ElementsAre(9, 12.5F, 0, 1234567.0F, 9));
    EXPECT_EQ(*ReadNumberLines(directory.Write("m", "1\n2\n3\n4\n5\n6"), values), 6);
    EXPECT_THAT(values, ElementsAre(9, 1, 2, 3, 4)) << "lines beyond the table are only counted";
}

TEST(Files, ReplacingKeepsModeFollowsLinksAndLeavesNothingBehind) {
    const ScratchDirectory directory;
    const auto path = directory.Write("real.txt", "old");
    fs::permissions(path, fs::perms(0640));
    fs::create_symlink("real.txt", directory / "link.txt");
    ASSERT_TRUE(ReplaceFile(directory / "LINK.TXT", "new"));
    EXPECT_EQ(FileContent(path), "new");
    EXPECT_TRUE(fs::is_symlink(directory / "link.txt"));
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0640));
    EXPECT_EQ(directory.Names().size(), 2U);
}

TEST(Files, AFaultLeavesTheOldFileWhole) {
    const ScratchDirectory directory;
    const auto path = directory.Write("a.txt", "old");
    const auto failed = ReplaceFile(path, [](const Sink& sink) { return sink("half") && false; });
    EXPECT_THAT(failed.message(), HasSubstr("a.txt"));
    EXPECT_EQ(FileContent(path), "old");
    EXPECT_THAT(ReplaceFile(directory / "none/a.txt", "x").message(), HasSubstr("No such file or directory"));
    EXPECT_THAT(ReplaceFile(directory.path(), "x").message(), HasSubstr("Is a directory"));
    EXPECT_EQ(directory.Names().size(), 1U);
}

// A disk that fills up, stood in for by a limit on the size of files, at several places of the content.
TEST(Files, AFullDiskLeavesTheOldFileWhole) {
    const ScratchDirectory directory;
    const auto path = directory.Write("a.txt", "old");
    const std::string content(300000, 'x');
    for (const rlim_t room : {0UL, 1UL, 65536UL, 299999UL}) {
        const auto replaced = [&] {
            const FileSizeLimit full(room);
            return ReplaceFile(path, content);
        }();
        EXPECT_THAT(replaced.message(), HasSubstr("File too large")) << room;
        EXPECT_EQ(FileContent(path), "old") << room;
        EXPECT_EQ(directory.Names().size(), 1U) << room;
    }
}

TEST(Clock, OrderFromTheLocalesFormats) {
    const struct {
        std::string_view date, time;
        int iDate, iTime;
    } cases[] = {{"%m/%d/%Y", "%r", 0, 0},
                 {"%d.%m.%Y", "%H:%M:%S", 1, 1},
                 {"%Y-%m-%d", "%T", 2, 1},
                 {"%d/%m/%y", "%I:%M:%S %p", 1, 0},
                 {"%D", "%H.%M", 0, 1},
                 {"%F", "", 2, 1},
                 {"", "", 1, 1}};
    for (const auto& c : cases) {
        const DateTimeOrder order = OrderOfFormats(c.date, c.time);
        EXPECT_EQ(order.iDate, c.iDate) << c.date;
        EXPECT_EQ(order.iTime, c.iTime) << c.time;
    }
}

}  // namespace
}  // namespace tolvanis
