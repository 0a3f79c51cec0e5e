#include <gtest/gtest.h>

#include <chrono>

#include "text/columns.h"
#include "text/dates.h"
#include "text/fields.h"
#include "text/search_key.h"

namespace tolvanis {
namespace {

TEST(Columns, CountCharactersNotBytes) {
    EXPECT_EQ(CharacterCount("Zoë Ångström"), 12U);
    EXPECT_EQ(FirstCharacters("Zoë Ångström", 5), "Zoë Å");
    EXPECT_EQ(FirstCharacters("abc", 7), "abc");
    EXPECT_EQ(FirstCharacters("é", 0), "");
    EXPECT_EQ(PadRight("Zoë", 5), "Zoë  ");
    EXPECT_EQ(PadLeft("Zoë", 5), "  Zoë");
    EXPECT_EQ(PadRight("Zoë", 2), "Zoë");
    EXPECT_EQ(TrimBlanks(" \t a b\t "), "a b");
    EXPECT_EQ(TrimBlanks("  "), "");
    // Letters of three and four bytes.
    EXPECT_EQ(CharacterCount("नमस्ते"), 6U);
    EXPECT_EQ(FirstCharacters("สมชาย", 2), "สม");
    EXPECT_EQ(PadRight("कखग", 5), "कखग  ");
    EXPECT_EQ(PadLeft("😀", 3), "  😀");
    EXPECT_EQ(ToUtf8("สมชาย नमस्ते"), "สมชาย नमस्ते");
}

TEST(Columns, UpperCaseOfThreeAlphabets) {
    const struct {
        std::string_view text;
        std::string_view upper;
    } cases[] = {{"Names.fil", "NAMES.FIL"},
                 {"zoë ñandú", "ZOË ÑANDÚ"},
                 {"žluťoučký", "ŽLUŤOUČKÝ"},
                 {"łódź ıß÷ÿ", "ŁÓDŹ ıß÷Ÿ"},
                 {"άλφα ώς", "ΆΛΦΑ ΏΣ"},
                 {"жанна ёж", "ЖАННА ЁЖ"},
                 {"đỗ", "ĐỖ"},
                 {"日本 😀é", "日本 😀É"},
                 {"\xE9t\xE9", "\xE9T\xE9"}};
    for (const auto& c : cases) EXPECT_EQ(UpperCase(c.text), c.upper) << c.text;
    EXPECT_TRUE(EqualIgnoringCase("José", "JOSÉ"));
    EXPECT_FALSE(EqualIgnoringCase("Jose", "José"));
    EXPECT_TRUE(StartsWithIgnoringAsciiCase("SUN IN ARIES", "Sun in"));
    EXPECT_FALSE(StartsWithIgnoringAsciiCase("SUN", "Sun in"));
}

TEST(Columns, BytesBecomeUtf8) {
    EXPECT_EQ(ToUtf8("\xEF\xBB\xBFZo\xC3\xAB"), "Zoë");
    EXPECT_EQ(ToUtf8("Zo\xEB \x80 \x9E"), "Zoë € ž");
    EXPECT_EQ(ToUtf8("\xF0\x90\x80\x80"), "\xF0\x90\x80\x80") << "the first letter of four bytes";
    EXPECT_EQ(ToUtf8("\xE0\xA0\x80"), "\xE0\xA0\x80") << "the first of three";
    EXPECT_EQ(ToUtf8("\xF0\x8F\x80\x80").substr(0, 2), "ð");
    EXPECT_EQ(ToUtf8("\xC0\xAF"), "À¯") << "an overlong sequence is not UTF-8";
    EXPECT_EQ(ToUtf8("\xED\xA0\x80").substr(0, 2), "í") << "a surrogate is not UTF-8";
    EXPECT_EQ(ToUtf8("a\xC3"), "aÃ") << "a sequence cut short";
}

TEST(Columns, WhatActsOnATerminalIsBlanked) {
    const std::pair<std::string, const char*> cases[] = {
        {"a\x1B[2Jb\x7F", "a [2Jb "},
        {"a\tb\r", "a b "},
        {"\xC2\x85x\xC2\xA0", " x\xC2\xA0"},
        {"a\xE2\x80\xAE"
         "b\xE2\x80\xA8",
         "a b "},
        {"\xE2\x81\xA6x\xE2\x81\xA9", " x "},
        {"\xE2\x80\x93 \xE2\x82\xAC \xE2\x81\xB0", "\xE2\x80\x93 \xE2\x82\xAC \xE2\x81\xB0"},
        {"caf\xE9\x1B", "caf\xC3\xA9 "}};
    for (const auto& [given, printed] : cases) EXPECT_EQ(Printable(given), printed);
}

TEST(Dates, FormAndReading) {
    EXPECT_EQ(FormatDate({277, 1, 5}), "05 Jan 0277");
    EXPECT_EQ(FormatDate({1955, 4, 31}), "31 Apr 1955");
    const struct {
        std::string_view text;
        CalendarDate date;
    } cases[] = {{"22 Sep 1949", {1949, 9, 22}},    {"1 JAN 0277", {277, 1, 1}},
                 {"31 Apr 1955", {1955, 4, 31}},    {"5-december-1800", {1800, 12, 5}},
                 {"5 - Dec - 1800", {1800, 12, 5}}, {"1949 Sep 22", {1949, 9, 22}},
                 {" 22/Sept/1949 ", {1949, 9, 22}}};
    for (const auto& c : cases) EXPECT_EQ(ParseDate(c.text), c.date) << c.text;
    for (const auto* text :
         {"", "22 Sep", "22 Xyz 1949", "32 Sep 1949", "0 Sep 1949", "22 Se 1949", "22 9 1949", "22 Sep 19499",
          "22 Sep 1949 x", "Sep 22 1949", "-22 Sep x", "15 Mar -150", "-15 Mar 150", "15--Mar-150"}) {
        EXPECT_FALSE(ParseDate(text)) << text;
    }
    EXPECT_EQ(JoinDate("1949", "9", "22", 0), "9/22/1949");
    EXPECT_EQ(JoinDate("1949", "9", "22", 1), "22/9/1949");
    EXPECT_EQ(JoinDate("1949", "9", "22", 2), "1949/9/22");
}

// Meeus, Astronomical Algorithms, 2nd edition, chapter 7, and the calendar reform.
TEST(Dates, JulianDayNumbers) {
    const struct {
        int year, month, day;
        double atNoon;
    } cases[] = {{2000, 1, 1, 2451545},   {1987, 6, 19, 2446966},  {837, 4, 10, 2026872},
                 {333, 1, 27, 1842713},   {1582, 10, 4, 2299160},  {1582, 10, 15, 2299161},
                 {1582, 10, 14, 2299170}, {1582, 12, 31, 2299238}, {1900, 2, 29, 2415080},
                 {1955, 4, 31, 2435229},  {100, 1, 1, 1757583},    {2099, 12, 31, 2488069}};
    for (const auto& c : cases) {
        EXPECT_EQ(JulianDayNumberOf(c.year, c.month, c.day), c.atNoon)
            << c.year << '-' << c.month << '-' << c.day;
    }
}

TEST(Dates, EveryDayFollowsTheOneBefore) {
    using namespace std::chrono;
    double last = JulianDayNumberOf(1583, 1, 1) - 1;
    for (sys_days day = 1583y / 1 / 1; day < sys_days(2100y / 1 / 1); day += days(1)) {
        const year_month_day date = day;
        ASSERT_EQ(JulianDayNumberOf(int(date.year()), int(unsigned(date.month())), int(unsigned(date.day()))),
                  ++last);
    }
}

TEST(Fields, QuotesProtectAndNicknamesSurvive) {
    const struct {
        std::string_view line;
        std::vector<std::string> fields;
    } cases[] = {{"a, b ,c", {"a", "b", "c"}},
                 {"", {""}},
                 {"\"Smith, Ann\" , 5", {"Smith, Ann", "5"}},
                 {"\" a \",b", {" a ", "b"}},
                 {"\"say \"\"hi\"\"\",b", {"say \"hi\"", "b"}},
                 {"\"Bob\" Smith,b", {"\"Bob\" Smith", "b"}},
                 {"\"open,b", {"\"open", "b"}},
                 {"Ann \"Nan\" Lee,b", {"Ann \"Nan\" Lee", "b"}},
                 {",,", {"", "", ""}}};
    for (const auto& c : cases) EXPECT_EQ(SplitFields(c.line), c.fields) << c.line;
}

TEST(SearchKey, DropsWhatPeopleDoNotType) {
    struct Case {
        const char *text, *key;
    };
    constexpr Case kCases[] = {{"Saint-Étienne", "SAINT ETIENNE"},
                               {"St. John's", "ST JOHNS"},
                               {"St.Gallen", "ST GALLEN"},
                               {"U.S.A.", "USA"},
                               {"Ж.Б.", "ЖБ"},
                               {"Kings Mtn.N.C", "KINGS MTN NC"},
                               {"  Łódź ", "LODZ"},
                               {"Straße", "STRASSE"},
                               {"Ærøskøbing", "AEROSKOBING"},
                               {"Đà Nẵng", "DA NANG"},
                               {"Şə‘ki", "SEKI"},
                               {"москва", "МОСКВА"},
                               {"e\u0301", "E"},
                               {"東京", "東京"},
                               {"a\xFF", "A"},
                               {"--", ""}};
    for (const Case& test : kCases) EXPECT_EQ(SearchKey(test.text), test.key) << test.text;
}

}  // namespace
}  // namespace tolvanis
