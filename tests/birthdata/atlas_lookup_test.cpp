// The atlas: what it leaves, forgets to leave or damages.
#include "birthdata/atlas_lookup.h"

#include <gtest/gtest.h>

#include "support.h"

namespace tolvanis {
namespace {

struct AtlasTest : ::testing::Test {
    ScratchDirectory directory;
    RecordedMessages messages;
    std::string atlasDir = directory.path().string() + "\\";
    std::vector<Path> started;
    ProgramRun outcome = ProgramRun::Ended;
    bool isOwn = false;  // the last one started
    RunProgram run = [this](const AtlasProgram& program) {
        started.push_back(program.file);
        isOwn = program.isOwn;
        return std::filesystem::exists(program.file) ? outcome : ProgramRun::NotStarted;
    };

    void SetUp() override {
        directory.Write("ATLAS.EXE", "");
        directory.Write("PCATPATH.TXT", atlasDir + "\r\nignored\r\n");
    }
    void Leave(const std::string& content) { directory.Write("TSRTEMP.TXT", content); }
};

TEST_F(AtlasTest, FillsWhatTheUserAccepts) {
    Leave("Seattle\r\n47N36\r\n122W20\r\n\r\n8\r\nmore\r\n");
    messages.answers = {Answer::Yes};
    const auto place = AtlasLookup(run, messages).LookUp(atlasDir);
    ASSERT_TRUE(place);
    EXPECT_EQ(*place, (Place{Coordinate{"122", "20", false}, Coordinate{"47", "36", false}, "8"}));
    EXPECT_EQ(messages.asked.at(0).title, "Accept or Reject data");
    EXPECT_EQ(messages.asked[0].text,
              "Accept following data? \r\n\r\nLongitude = 122W20\r\nLatitude  = 47N36\r\nTime zone =  8");
    messages.answers = {Answer::No};
    EXPECT_FALSE(AtlasLookup(run, messages).LookUp(atlasDir));
    outcome = ProgramRun::Abandoned;
    EXPECT_FALSE(AtlasLookup(run, messages).LookUp(atlasDir));
    EXPECT_TRUE(messages.told.empty()) << "an abandoned lookup says nothing";
}

TEST(AtlasResultTest, SplitsAtTheLetter) {
    using C = Coordinate;
    const struct {
        const char* text;
        std::optional<C> longitude, latitude;
    } cases[] = {{"73W59", C{"73", "59", false}, {}},
                 {"2E21", C{"2", "21", true}, {}},
                 {"33S52", {}, C{"33", "52", true}},
                 {"47N", {}, C{"47", "0", false}},
                 {"7359", {}, {}},
                 {"", {}, {}},
                 {"1W2E3", {}, {}}};
    for (const auto& test : cases) {
        const Place place = PlaceOfAtlas({test.text, test.text, -1.0F});
        EXPECT_EQ(place.longitude, test.longitude) << test.text;
        EXPECT_EQ(place.latitude, test.latitude) << test.text;
    }
    NatalEntry entry;
    entry.longDeg = "10";
    FillPlace(entry, PlaceOfAtlas({"rubbish", "33S52", -1.0F}));
    EXPECT_EQ(entry.longDeg, "10") << "a coordinate without its letter stays";
    EXPECT_EQ(entry.latMin + entry.timeZone, "52-1");
}

TEST_F(AtlasTest, AsksForTheDirectoryUntilTheProgramStarts) {
    Leave("\n1N2\n3E4\n\n-1\n");
    std::string remembered;
    messages.texts = {"c:\\atlas", directory.path().string(), ""};
    messages.answers = {Answer::Yes};
    AtlasLookup(run, messages).LookUp(remembered);
    EXPECT_EQ(messages.asked.at(0).title, "Where do I find ATLAS.EXE?");
    EXPECT_EQ(messages.asked[0].text,
              "Enter the complete path for where ATLAS.EXE resides: \r\n\r\n(Example: c:\\atlas OR "
              "c:\\charts\\atlas OR d:\\windows\\atlas\\)");
    EXPECT_EQ(started.at(0), Path("c:/atlas/ATLAS.EXE"));
    EXPECT_EQ(remembered, directory.path().string() + "\\");
    EXPECT_NE(messages.asked.back().find("Time zone = -1"), std::string::npos);

    std::string kept = "c:\\gone\\";
    EXPECT_FALSE(AtlasLookup(run, messages).LookUp(kept)) << "an empty answer ends the lookup";
    EXPECT_EQ(kept, "c:\\gone\\");
}

TEST_F(AtlasTest, TellsWhichFileIsMissing) {
    struct Case {
        const char* what;
        std::function<void()> prepare;
        std::string file;
    };
    const Case cases[] = {
        {"no exchange file", [&] { std::filesystem::remove(directory / "TSRTEMP.TXT"); }, "TSRTEMP.TXT"},
        {"a directory", [&] { std::filesystem::create_directory(directory / "TSRTEMP.TXT"); }, "TSRTEMP.TXT"},
        {"an empty path file", [&] { directory.Write("PCATPATH.TXT", ""); }, "PCATPATH"},
        {"no path file", [&] { std::filesystem::remove(directory / "PCATPATH.TXT"); }, "PCATPATH"},
    };
    for (const Case& test : cases) {
        test.prepare();
        messages.told.clear();
        EXPECT_FALSE(AtlasLookup(run, messages).LookUp(atlasDir)) << test.what;
        ASSERT_EQ(messages.told.size(), 1U) << test.what;
        EXPECT_EQ(messages.told[0].text,
                  "Cannot find the file called " + test.file + " in the " + atlasDir + " directory.");
        EXPECT_EQ(messages.told[0].title, "Warning!");
    }
}

TEST_F(AtlasTest, RefusesAnUnreadableLineAndNamesIt) {
    const struct {
        std::string lines, named;
    } cases[] = {{"47N36\n" + std::string(100'000, '7') + "\n\n8\n", "line 3"},
                 {"\x01\n122W20\n\n8\n", "line 2"},
                 {"91N00\n122W20\n\n8\n", "line 2"},
                 {"47N60\n122W20\n\n8\n", "line 2"},
                 {"90N01\n122W20\n\n8\n", "line 2"},
                 {"90N00\n180W00.1\n\n8\n", "line 3"},
                 {"47N36\n12W2E0\n\n8\n", "line 3"},
                 {"47N36\n122W20\n\neight\n", "line 5"},
                 {"47N36\n122W20\n\n88\n", "line 5"},
                 {"47N36\n122W20\n", "it has 3 of 5 lines"}};
    for (const auto& test : cases) {
        Leave("x\n" + test.lines);
        messages.told.clear();
        EXPECT_FALSE(AtlasLookup(run, messages).LookUp(atlasDir)) << test.named;
        ASSERT_EQ(messages.told.size(), 1U);
        EXPECT_NE(messages.told[0].text.find("TSRTEMP.TXT"), std::string::npos);
        EXPECT_NE(messages.told[0].text.find(test.named), std::string::npos) << messages.told[0].text;
        EXPECT_LT(messages.told[0].text.size(), 300U) << "only the start of rubbish is shown";
    }
}

TEST_F(AtlasTest, SaysNothingWhereTheOwnAtlasWasCancelled) {
    const std::string own = directory.path().string() + "/";
    for (const std::string& named : {own, atlasDir, own + "./"}) {
        std::string settings = named;
        EXPECT_FALSE(AtlasLookup(run, messages, own).LookUp(settings));
        EXPECT_TRUE(isOwn) << named;
        EXPECT_TRUE(messages.told.empty()) << named;
    }
    EXPECT_FALSE(AtlasLookup(run, messages).LookUp(atlasDir));
    EXPECT_FALSE(isOwn) << "there is no own one";
}

}  // namespace
}  // namespace tolvanis
