// Sections of text files: where they begin and end, and where the search is given up.

#include "interp/section_file.h"

#include <gtest/gtest.h>

#include "support.h"

namespace tolvanis {
namespace {

// The lines taken, each in front of a "|", and a letter for the outcome.
std::string Taken(const std::string& content, std::string_view key, SearchEnd end) {
    const ScratchDirectory directory;
    LineReader file(directory.Write("S.TXT", content));
    std::string taken;
    const SectionOutcome outcome =
        TakeSection(file, key, end, [&](std::string_view line) { taken.append(line).append("|"); });
    return taken + "ACS"[static_cast<int>(outcome)];  // absent, complete, cut short
}

TEST(SectionFile, BeginsAtItsHeadingAndEndsAtItsTerminator) {
    const struct {
        const char *content, *taken;
    } cases[] = {
        {"Moon in\nno\n*\nSUN IN ARIES\none\n\n two\n*\nno\n", "SUN IN ARIES|one|| two|C"},
        {"\n   sun in  \r\n  text \r\n[]\r\nno", "   sun in  |  text |C"},
        {"Sun in\n**\n* a\n[]b\n* \n \t*\n    *\nno\n", "Sun in|**|* a|[]b|* | \t*|C"},
        {"Sun in\nx\n  []", "Sun in|x|C"},
        {"Sun in\nSun in\n*\nSun in\nno\n*\n", "Sun in|Sun in|C"},
        {"Sunin\nThe Sun in\nSun  in\n\tSun in\n", "A"},
        {"Sun inside out\n*\n", "Sun inside out|C"},
        {"Sun in\nx\n\n", "Sun in|x||S"},
        {"x\nSun in", "Sun in|S"},
        {"*\n[]\nSun in\n*", "Sun in|C"},
        {"Sun in\n\n\n\n\n\n\n\n\n\n\n\n\ny\n*\n", "Sun in|||||||||||||y|C"},
        {"", "A"},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(Taken(test.content, "Sun in", SearchEnd::TenEmptyLines), test.taken) << test.content;
        EXPECT_EQ(Taken(test.content, "SUN in", SearchEnd::FileEnd), test.taken) << test.content;
    }
}

TEST(SectionFile, IsGivenUpAtTheTenthEmptyLine) {
    const std::string nine = "x\n" + std::string(9, '\n'), heading = "Sun in\n*\n";
    const auto report = [](const std::string& content) {
        return Taken(content, "Sun in", SearchEnd::TenEmptyLines);
    };
    EXPECT_EQ(report(nine + heading), "Sun in|C");
    EXPECT_EQ(report(nine + "\n" + heading), "A");
    EXPECT_EQ(report(nine + " \n\n" + heading), "Sun in|C") << "a line of blanks is not empty";
    EXPECT_EQ(report(nine + nine + heading), "Sun in|C");
    EXPECT_EQ(Taken(nine + "\n" + heading, "Sun in", SearchEnd::FileEnd), "Sun in|C");
}

TEST(SectionFile, AMissingFileIsNotedInTheReader) {
    const ScratchDirectory directory;
    for (const auto& path : {directory / "NONE.TXT", directory.path()}) {
        LineReader file(path);
        EXPECT_EQ(TakeSection(file, "Sun in", SearchEnd::FileEnd, [](std::string_view) { FAIL(); }),
                  SectionOutcome::Absent);
        EXPECT_TRUE(file.HasFault());
    }
}

}  // namespace
}  // namespace tolvanis
