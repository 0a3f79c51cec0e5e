// The menu and text tables, the editors' rules, the clock and the command line.

#include <gmock/gmock.h>

#include <map>
#include <set>

#include "app/clock_caption.h"
#include "app/desktop_arguments.h"
#include "app/editor_uses.h"
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
        EXPECT_EQ(EditedFile(*EditorText(directory.path() / "f.txt")), test.after);
    }
    EXPECT_EQ(EditedFile("x"), "");
    EXPECT_EQ(EditedFile("\u00e9"), "");
    EXPECT_EQ(*EditorText(directory.path() / "GONE.TXT"), "");
    EXPECT_FALSE(EditorText(directory.path()));
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
    ASSERT_TRUE(RestoreOptions(files));
    EXPECT_EQ(FileContent(directory / "OPTIONS.OPT"), "5\r\n");
}

TEST(OptionsFile, OfOtherContentIsRefused) {
    const ScratchDirectory directory;
    const DataFiles files(directory.path());
    Options options;
    EXPECT_FALSE(LoadOptions(files, options));
    for (const char* content : {"", "Dear diary,\r\n", "0\r\n0\r\n"}) {
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
    EXPECT_FALSE(parse({"--app-dir"}));
    EXPECT_FALSE(parse({"chart.fil"}));
}

}  // namespace
}  // namespace tolvanis
