// Settings from run to run: the file byte for byte, its rules, and that no rubbish in it stops the program.

#include "app/settings_file.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support.h"

namespace tolvanis {
namespace {

constexpr std::string_view kDefaultFile =
    "[Tolvanis] - Do NOT change the order of these variables.\r\n"
    "FontSize= 8.5\r\nFontBold= 0\r\nFontItalic= 0\r\n"
    "TOLVANISTop= 0\r\nTOLVANISLeft= 900\r\nTOLVANISHeight= 675\r\nTOLVANISWidth= 10860\r\n"
    "DataTop= 945\r\nDataLeft= 900\r\nDataHeight= 8250\r\nDataWidth= 9600\r\nStartScale= 287\r\n"
    "DataFile=/home/ann/NAMES.FIL\r\nGeoDataFile=/home/ann/GA_MA.LL\r\n"
    "TypeChart= 0\r\nInterpsDir=/home/ann/\r\n"
    "wh_var1=0\r\nwh_var2=0\r\nwh_var3=0\r\nwh_var4=0\r\nwh_var5=0\r\nwh_var6=0\r\n";

TEST(SettingsFile, DefaultsAreWrittenByteForByte) {
    EXPECT_EQ(SettingsText(DefaultSettings("/home/ann")), kDefaultFile);
}

TEST(SettingsFile, AtlasDirectoryAndNegativeValuesHaveTheirForm) {
    Settings settings = DefaultSettings("/home/ann");
    settings.AtlasDir = "C:\\ATLAS";
    settings.dataView.DataLeft = -200;
    settings.dataView.FontBold = -1;
    const std::string text = SettingsText(settings);
    EXPECT_NE(text.find("GA_MA.LL\r\nAtlasDir=C:\\ATLAS\r\nTypeChart="), std::string::npos);
    EXPECT_NE(text.find("\r\nDataLeft=-200\r\n"), std::string::npos);
    EXPECT_NE(text.find("\r\nFontBold=-1\r\n"), std::string::npos);
}

TEST(SettingsFile, EveryLineHasItsRule) {
    const struct {
        const char* line;
        void (*expect)(const Settings&);
    } cases[] = {
        {"FontSize=7.5", [](const Settings& s) { EXPECT_EQ(s.dataView.FontSize, 8.5); }},
        {"FontSize= 7.75", [](const Settings& s) { EXPECT_EQ(s.dataView.FontSize, 7.75); }},
        {"FontSizeOfMine= 9", [](const Settings& s) { EXPECT_EQ(s.dataView.FontSize, 9); }},
        {"fontsize= 9", [](const Settings& s) { EXPECT_EQ(s.dataView.FontSize, 8.5); }},
        {"DataHeight= 0", [](const Settings& s) { EXPECT_EQ(s.dataView.DataHeight, 8250); }},
        {"DataHeight=-4", [](const Settings& s) { EXPECT_EQ(s.dataView.DataHeight, 8250); }},
        {"DataHeight= .5", [](const Settings& s) { EXPECT_EQ(s.dataView.DataHeight, 8250); }},
        {"DataHeight= .51", [](const Settings& s) { EXPECT_EQ(s.dataView.DataHeight, 1); }},
        {"DataHeight=rubbish", [](const Settings& s) { EXPECT_EQ(s.dataView.DataHeight, 8250); }},
        {"DataWidth= 99999", [](const Settings& s) { EXPECT_EQ(s.dataView.DataWidth, 32767); }},
        {"DataTop= 2.5", [](const Settings& s) { EXPECT_EQ(s.dataView.DataTop, 2); }},
        {"DataTop= 3.5", [](const Settings& s) { EXPECT_EQ(s.dataView.DataTop, 4); }},
        {"DataLeft=-200", [](const Settings& s) { EXPECT_EQ(s.dataView.DataLeft, -200); }},
        {"TOLVANISTop=-30", [](const Settings& s) { EXPECT_EQ(s.TOLVANISTop, -30); }},
        {"TOLVANISHeight= 0", [](const Settings& s) { EXPECT_EQ(s.TOLVANISHeight, 675); }},
        {"DataFile=", [](const Settings& s) { EXPECT_EQ(s.DataFile, "/home/ann/NAMES.FIL"); }},
        {"DataFile=/a=b.FIL", [](const Settings& s) { EXPECT_EQ(s.DataFile, "/a=b.FIL"); }},
        {"StartScale=abc", [](const Settings& s) { EXPECT_EQ(s.StartScale, 0); }},
        {"TypeChart= 1", [](const Settings& s) { EXPECT_EQ(s.TypeChart, 1); }},
        {"InterpsDir", [](const Settings& s) { EXPECT_EQ(s.InterpsDir, "/home/ann/"); }},
        {"[Tolvanis]", [](const Settings& s) { EXPECT_EQ(s, DefaultSettings("/home/ann")); }},
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(test.line);
        Settings settings = DefaultSettings("/home/ann");
        ApplySettingsLine(test.line, settings);
        test.expect(settings);
    }
}

TEST(SettingsFile, WhatIsWrittenReadsBackInAnyOrder) {
    const ScratchDirectory directory;
    Settings settings = DefaultSettings(directory.path());
    settings.dataView = {9.25, -1, 0, 30, -45, 6000, 7005};
    settings.TOLVANISLeft = -105;
    settings.AtlasDir = "/opt/atlas";
    settings.TypeChart = 1;
    ASSERT_TRUE(WriteSettings(directory.path(), settings));
    EXPECT_EQ(*ReadSettings(directory.path()), settings);

    auto lines = *ReadLines(directory.path() / "Tolvanis.ini");
    std::reverse(lines.begin(), lines.end());
    directory.Write("Tolvanis.ini", JoinLines(lines));
    EXPECT_EQ(*ReadSettings(directory.path()), settings);
}

TEST(SettingsFile, InterpretationDirectoryEndsInOneSeparator) {
    const ScratchDirectory directory;
    for (const char* given : {"C:\\TEXTS\\", "/texts/", "/texts"}) {
        directory.Write("Tolvanis.ini", std::string("InterpsDir=") + given + "\r\n");
        const std::string want = given == std::string("/texts") ? "/texts/" : given;
        EXPECT_EQ(ReadSettings(directory.path())->InterpsDir, want);
    }
}

TEST(SettingsFile, RubbishAndAMissingFileGiveTheDefaults) {
    const ScratchDirectory directory;
    EXPECT_EQ(*ReadSettings(directory.path()), DefaultSettings(directory.path()));
    directory.Write("Tolvanis.ini", std::string("\0\xff\xfe====\nDataTop\n=\nDataHeight=1e999x", 30));
    const Settings settings = *ReadSettings(directory.path());
    EXPECT_EQ(settings.dataView.DataTop, 945);
    EXPECT_EQ(settings.DataFile, DefaultSettings(directory.path()).DataFile);
}

TEST(SettingsFile, ADirectoryThatCannotBeWrittenIsNamed) {
    const ScratchDirectory directory;
    const Result<void> written = WriteSettings(directory.path() / "gone", DefaultSettings("/"));
    ASSERT_FALSE(written);
    EXPECT_NE(written.message().find("gone/Tolvanis.ini: No such file or directory"), std::string::npos);
}

// A portable copy that has been moved finds its files; what lies elsewhere stays there.
TEST(SettingsFile, FilesOfAMovedDirectoryAreFound) {
    const ScratchDirectory directory, elsewhere;
    const std::string here = directory.path().string() + "/";
    directory.Write("Ann.fil", "");
    directory.Write("GA_MA.LL", "");
    directory.Write("NAMES.FIL", "");
    std::filesystem::create_directory(directory / "ATLAS");
    const std::string kept = elsewhere.Write("NAMES.FIL", "").string();
    const auto read = [&](const std::string& content) {
        directory.Write("Tolvanis.ini", content);
        return *ReadSettings(directory.path());
    };
    const Settings moved = read(
        "DataFile=/old/place/ANN.FIL\r\nGeoDataFile=C:\\OLD\\GA_MA.LL\r\n"
        "AtlasDir=/old/place/ATLAS/\r\nInterpsDir=/old/place/\r\n");
    EXPECT_EQ(moved.DataFile, here + "Ann.fil");
    EXPECT_NE(SettingsText(moved).find("DataFile=" + here + "Ann.fil\r\n"), std::string::npos);
    EXPECT_EQ(moved.GeoDataFile, here + "GA_MA.LL");
    EXPECT_EQ(moved.AtlasDir, here + "ATLAS");
    EXPECT_EQ(moved.InterpsDir, here);
    const Settings stays =
        read("DataFile=" + kept + "\r\nGeoDataFile=/old/OTHER.LL\r\nInterpsDir=C:\\TEXTS\r\n");
    EXPECT_EQ(stays.DataFile, kept);
    EXPECT_EQ(stays.GeoDataFile, "/old/OTHER.LL");
    EXPECT_EQ(stays.InterpsDir, "C:\\TEXTS\\");
    EXPECT_NE(SettingsText(stays).find("InterpsDir=C:\\TEXTS\\\r\n"), std::string::npos);
    const Settings away = read("DataFile=/a/stick/NAMES.FIL\r\nInterpsDir=" + here + "\r\n");
    EXPECT_EQ(away.DataFile, here + "NAMES.FIL");
    EXPECT_NE(SettingsText(away).find("\r\nDataFile=/a/stick/NAMES.FIL\r\n"), std::string::npos)
        << "the next run looks for it again";
}

}  // namespace
}  // namespace tolvanis
