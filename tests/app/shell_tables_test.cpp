// The menu and text tables, the editors' rules, the clock and the command line.

#include <gmock/gmock.h>

#include <map>
#include <set>

#include "app/clock_caption.h"
#include "app/desktop_arguments.h"
#include "app/editor_file.h"
#include "app/menu_table.h"
#include "app/options_file.h"
#include "app/study_texts.h"
#include "support.h"
#include "text/columns.h"

namespace tolvanis {
namespace {

char AccessKey(const std::string& caption) {
    const std::size_t mark = caption.find('&');
    return mark == std::string::npos ? '\0' : UpperCase(caption.substr(mark + 1, 1))[0];
}

TEST(MenuTable, NamesAreUniqueAndMenusComeBeforeTheirItems) {
    std::set<std::string> known = {""};
    for (const MenuItem& item : MainMenu()) {
        EXPECT_TRUE(known.contains(item.menu)) << item.control;
        EXPECT_TRUE(known.insert(item.control).second) << item.control;
    }
}

TEST(MenuTable, AccessKeysOfTheMenuBarAndThePhilosophyMenuDiffer) {
    std::map<std::string, std::set<char>> used;
    for (const MenuItem& item : MainMenu()) {
        if (!item.menu.empty() && item.menu != "mnuPhilosophy") continue;
        EXPECT_TRUE(used[item.menu].insert(AccessKey(item.caption)).second) << item.caption;
    }
}

TEST(MenuTable, ShowsTwentyStudyTextsWithShortNames) {
    std::set<std::string_view> names;
    for (const StudyText& text : kStudyTexts) {
        names.insert(text.fileName);
        EXPECT_TRUE(text.fileName.ends_with(".TXT") && text.fileName.size() <= 12) << text.fileName;
        EXPECT_EQ(UpperCase(text.fileName), text.fileName);
    }
    EXPECT_EQ(names.size(), 20U);
    for (const char* must : {"WHAT_AST.TXT", "ZODIACS.TXT", "INTUIT.TXT"}) EXPECT_TRUE(names.contains(must));
}

TEST(Editors, WriteBackWhatTheyLoaded) {
    const ScratchDirectory directory;
    const struct {
        const char *before, *after;
    } cases[] = {{"a\r\nb\r\n", "a\r\nb\r\n"}, {"a\nb", "a\r\nb\r\n"}, {"", ""}, {"\r\n", "\r\n"}};
    for (const auto& test : cases) {
        directory.Write("F.TXT", test.before);
        EXPECT_EQ(EditedFile(*EditorFile(directory.path() / "f.txt").Read()), test.after);
    }
    EXPECT_EQ(EditedFile("x"), "");
    EXPECT_EQ(EditedFile("\u00e9"), "");
    EXPECT_EQ(*EditorFile(directory.path() / "GONE.TXT").Read(), "");
    EXPECT_FALSE(EditorFile(directory.path()).Read());
}

// Another window or program saves the file while it is open in an editor.
TEST(Editors, OverwriteNothingThatWasSavedMeanwhile) {
    const ScratchDirectory directory;
    const auto path = directory.Write("N.FIL", "Ann\r\nBob\r\n");
    EditorFile file(path);
    EXPECT_EQ(*file.Read(), "Ann\r\nBob\r\n");
    EXPECT_FALSE(file.HasChanged());
    EXPECT_TRUE(*file.Save("Ann\r\nBob\r\n"));
    EXPECT_EQ(directory.Names().size(), 1U) << "nothing was changed and no backup lost";

    directory.Write("N.FIL", "Ann\r\nCid\x1B\r\n");
    EXPECT_TRUE(file.HasChanged());
    EXPECT_FALSE(*file.Save("Ann\r\nEve\r\n"));
    EXPECT_EQ(FileContent(path), "Ann\r\nCid\x1B\r\n");
    EXPECT_EQ(*file.TakeChanges(), "New since then:\r\n    Cid \r\nGone since then:\r\n    Bob\r\n");
    EXPECT_TRUE(*file.Save("Ann\r\nEve"));
    EXPECT_EQ(FileContent(path), "Ann\r\nEve\r\n");
    EXPECT_EQ(FileContent(directory / "N.OLD"), "Ann\r\nCid\x1B\r\n");

    EXPECT_FALSE(file.IsGone());
    std::filesystem::remove(path);
    EXPECT_TRUE(file.IsGone());
    EXPECT_TRUE(*file.Save("Ann\r\nEve\r\nFay\r\n")) << "it may be the last copy";
    EXPECT_EQ(FileContent(path), "Ann\r\nEve\r\nFay\r\n");
    EXPECT_EQ(FileContent(directory / "N.OLD"), "Ann\r\nCid\x1B\r\n");

    directory.Write("N.FIL", std::string(kLongestLine + 1, 'x'));
    EXPECT_FALSE(file.Read());
    EXPECT_FALSE(file.HasChanged()) << "the same fault is told once";
    directory.Write("N.FIL", "Ann\r\n");
    EXPECT_TRUE(file.HasChanged());
    EditorFile unread(directory.path());
    EXPECT_FALSE(unread.Read());
    EXPECT_FALSE(unread.Save("Ann"));
    EXPECT_EQ(ChangesBetween("a\nb\n", "b\na\n"), "The order of its lines has changed.\r\n");
    EXPECT_THAT(ChangesBetween("", "1\n2\n3\n4\n5\n6\n7\n"),
                testing::EndsWith("    5\r\n    and 2 more\r\n"));
}

TEST(OptionsFile, ReadsNumbersUpToTheFirstEmptyLine) {
    const ScratchDirectory directory;
    directory.Write("options.opt", "  12.5 orb\r\nletters\r\n1234567890\r\n\r\n7\r\n");
    Options options;
    options[4] = 3;
    EXPECT_EQ(*ReadOptions(DataFiles(directory.path()), options), 3);
    EXPECT_EQ(options[1], 12.5F);
    EXPECT_EQ(options[2], 0.0F);
    EXPECT_EQ(options[3], 1234567.0F);
    EXPECT_EQ(options[4], 3.0F);
}

TEST(OptionsFile, IsRestoredFromItsMaster) {
    const ScratchDirectory directory, installed;
    const DataFiles files(directory.path(), installed.path());
    EXPECT_FALSE(RestoreOptions(files));
    installed.Write("OPTIONS.MAS", "5\r\n");
    directory.Write("Options.opt", "7 mine\r\n");
    for (int again = 0; again < 2; ++again) {
        ASSERT_TRUE(RestoreOptions(files));
        EXPECT_EQ(FileContent(directory / "Options.opt"), "5\r\n");
        EXPECT_EQ(FileContent(directory / "Options.OLD"), "7 mine\r\n");
    }
}

TEST(OptionsFile, OfOtherContentIsRefused) {
    const ScratchDirectory directory;
    const DataFiles files(directory.path());
    Options options;
    EXPECT_FALSE(LoadOptions(files, options));
    for (const char* content :
         {"", "Dear diary,\r\n", "0\r\n0\r\n", "Dear diary,\r\nit is\r\n8 o'clock\r\n"}) {
        directory.Write("OPTIONS.OPT", content);
        EXPECT_THAT(LoadOptions(files, options).message(), testing::HasSubstr("holds no options")) << content;
    }
}

TEST(ClockCaption, FollowsTheSystemsClock) {
    const LocalTime midnight{{2027, 1, 5}, 0, 7, 3}, evening{{2027, 1, 5}, 21, 7, 3};
    EXPECT_EQ(ClockCaption("Tolvanis - ", evening, {1, 1}), "Tolvanis - 05 Jan 2027     21:07:03");
    EXPECT_EQ(ClockCaption("TOLVANIS - ", evening, {0, 0}), "TOLVANIS - 05 Jan 2027     9:07:03 PM");
    EXPECT_EQ(ClockCaption("", midnight, {0, 0}), "05 Jan 2027     12:07:03 AM");
}

TEST(DesktopArguments, WrongOnesAreRefused) {
    const auto parse = [](std::vector<std::string_view> arguments) {
        return ParseDesktopArguments(arguments);
    };
    EXPECT_EQ(parse({"--app-dir", "/x"})->appDirectory, "/x");
    EXPECT_EQ(parse({"--app-dir=/x"})->appDirectory, "/x");
    EXPECT_TRUE(parse({"--help"})->help);
    EXPECT_TRUE(parse({"--version"})->version);
    EXPECT_TRUE(parse({"--wheel", "a.svg", "--help"})->help);
    EXPECT_TRUE(parse({"--now", "--wheel=a.svg"})->wheel);
    EXPECT_FALSE(parse({"--app-dir"}));
    EXPECT_FALSE(parse({"chart.fil"}));
}

}  // namespace
}  // namespace tolvanis
