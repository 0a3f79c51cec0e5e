// What the reference windows look up: meanings, keywords and lessons.

#include <gmock/gmock.h>

#include <set>

#include "interp/keyword_system.h"
#include "interp/keywords.h"
#include "interp/meanings.h"
#include "support.h"

namespace tolvanis {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

TEST(Meanings, KeysAndFiles) {
    const auto expect = [](const MeaningPlace& place, const char* file, const char* key) {
        EXPECT_EQ(place.file, file);
        EXPECT_EQ(place.key, key);
    };
    expect(*PlanetInSign({.sign = 9, .planet = 6}), "SIGN_Cap.TXT", "Saturn in");
    expect(PlanetInHouse({.house = 11, .planet = 8}), "HOUSE_12.TXT", "Neptune in");
    expect(RisingSign({.sign = 0}), "RISING.TXT", "Aries rising");
    expect(*AspectOfPlanets({}), "Sun.TXT", "Sun discordant to Moon");
    for (const int planet : {7, 8}) {
        EXPECT_EQ(PlanetInSign({.planet = planet}).message(),
                  "Uranus - Pluto sign positions are not delineated.");
    }
}

TEST(Meanings, AspectsThatCannotBeAreRefused) {
    const struct {
        int left, right, aspect;
        const char* told;  // the beginning, empty where the aspect exists
    } cases[] = {{1, 0, kBlending, "Please select a higher planet on the left"},
                 {8, 2, kDiscordant, "Please select a higher planet on the left"},
                 {3, 3, kDiscordant, "A planet cannot aspect itself."},
                 {0, 2, kBlending, ""},
                 {0, 2, kHarmonizing, "Mercury can never by far enough away from the Sun"},
                 {0, 2, kDiscordant, "Mercury can never by far enough away from the Sun"},
                 {0, 3, kHarmonizing, ""},
                 {0, 3, kDiscordant, "Venus can never by far enough away from the Sun"},
                 {2, 3, kHarmonizing, ""},
                 {2, 3, kDiscordant, "Venus can never by far enough away from Mercury"},
                 {3, 4, kDiscordant, ""}};
    for (const auto& test : cases) {
        const auto place =
            AspectOfPlanets({.planet = test.left, .aspect = test.aspect, .secondPlanet = test.right});
        EXPECT_THAT(place.message(), StartsWith(test.told));
        EXPECT_EQ(static_cast<bool>(place), *test.told == '\0') << test.left << " " << test.right;
    }
}

TEST(Meanings, AreListedBehindABlankLine) {
    const ScratchDirectory directory;
    DataBuffer buffer;
    const auto path = directory.Write("M.TXT", std::string(12, '\n') + " SUN IN ARIES\n\ntext\n  []\nno\n");
    ASSERT_TRUE(ListMeaning(buffer, path, "Sun in"));
    EXPECT_THAT(buffer.ListingLines(), ElementsAre("", "   SUN IN ARIES", "  ", "  text"));
    ASSERT_TRUE(ListMeaning(buffer, path, "Moon in"));
    EXPECT_THAT(buffer.ListingLines(), ElementsAre(""));
    EXPECT_EQ(buffer.BufferLineCount(), 5U) << "what was shown before can still be saved";
    const Path missing = directory / "SIGN_Lib.TXT";
    EXPECT_EQ(ListMeaning(buffer, missing, "x").message(),
              "Cannot find the file called " + missing.string() + ".");
    std::filesystem::create_directory(missing);
    EXPECT_THAT(ListMeaning(buffer, missing, "x").message(), HasSubstr("directory"));
}

TEST(Meanings, OwnDirectoryStandsForItself) {
    const ScratchDirectory user, own, delivered;
    const DataFiles files(user.path(), delivered.path(), DataFiles::Directory::OfUser);
    delivered.Write("SUN.TXT", "delivered");
    for (const char* end : {"", "/", "\\"}) {
        EXPECT_EQ(MeaningFile(files, user.path().string() + end, "Sun.TXT"), delivered / "SUN.TXT") << end;
        EXPECT_EQ(MeaningFile(files, own.path().string() + end, "Sun.TXT"), own / "Sun.TXT") << end;
    }
}

TEST(Keywords, EveryTopicHasATextOfItsOwn) {
    std::set<std::string> texts;
    for (const auto& row : kKeywordGrid) {
        for (const std::string_view topic : row) {
            const std::string text = KeywordText(topic);
            EXPECT_EQ(text.empty(), topic.empty()) << topic;
            EXPECT_TRUE(topic.empty() || texts.insert(text).second) << topic;
        }
    }
    EXPECT_THAT(KeywordText("Leo"),
                StartsWith("In the house where Leo rules the cusp is where:\r\n\r\nyou feel a need for"));
    EXPECT_THAT(KeywordText("Leo"),
                HasSubstr("\r\n\r\nBest quality: Kindness\r\nWorst quality: Domination\r\n"
                          "Thought series: Will"));
    EXPECT_THAT(KeywordText("Aspects"), StartsWith("Conjunction    =  Prominence"));
    EXPECT_THAT(KeywordText("Earth"), HasSubstr("The builder."));
    EXPECT_EQ(KeywordText("leo"), "");
}

TEST(KeywordSystem, FilesOfTheLessons) {
    EXPECT_EQ(SignLessonFile(1), "ARI.TXT");
    EXPECT_EQ(SignLessonFile(9), "SAG.TXT");
    EXPECT_EQ(HouseLessonFile(1), "1st.TXT");
    EXPECT_EQ(HouseLessonFile(10), "10th.TXT");
    EXPECT_EQ(PlanetLessonFile(1), "SUN_SUN.TXT");
    EXPECT_EQ(PlanetLessonFile(2), "MOO.TXT");
    EXPECT_EQ(PlanetLessonFile(10), "PLU.TXT");
}

}  // namespace
}  // namespace tolvanis
