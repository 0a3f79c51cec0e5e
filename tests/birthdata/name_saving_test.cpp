// Saving into a names file: nothing a user has is ever lost, whatever goes wrong and when.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <random>
#include <sstream>
#include <thread>

#include "birthdata/name_saving.h"
#include "birthdata/names_file.h"
#include "support.h"

namespace tolvanis {
namespace {

NatalEntry Entry(const std::string& name) {
    return {name, "9", "22", "1949", "9", "5", false, "5", "73", "59", false, "40", "45", false};
}

const std::string kBare = ",01 Jan 2000,12.30,P,-1,-002.21,-33.52";
const std::string kOld = kBare + "\r\n";

bool SaveTo(const Path& file, const std::string& name, Messages& messages) {
    return static_cast<bool>(SaveRecord(
        Entry(name), [&] { return file.string(); }, messages));
}

bool ListShowsTheNewRecord(const Path& file) {
    const RecordList list = ReadNamesFile(file);
    bool shown = false;
    for (std::size_t i = 0; i < list.size(); ++i) {
        shown = shown || kRest == std::string(list.Line(i).substr(list.Line(i).find(','))) + "\r\n";
    }
    return shown;
}

struct SaveCase {
    const char* what;
    std::string before, after;
    std::deque<Answer> answers = {};
    std::string name = "Ann";
};

TEST(NameSavingTest, MakesAFileThatDoesNotExistYet) {
    const ScratchDirectory directory;
    RecordedMessages messages;
    EXPECT_TRUE(SaveTo(directory / "FIRST.FIL", "Ann", messages));
    EXPECT_EQ(FileContent(directory / "FIRST.FIL"), "Ann" + kRest);
    EXPECT_EQ(directory.Names(), std::vector<std::string>{"FIRST.FIL"}) << "there is nothing to back up";
}

TEST(NameSavingTest, KeepsEveryOtherLineAsItIs) {
    constexpr Answer kYes = Answer::Yes, kNo = Answer::No;
    const std::string ann = "Ann" + kRest, oldAnn = "Ann" + kOld, bob = "Bob" + kOld;
    const std::string byteOrderMark = "\xEF\xBB\xBF";
    const std::vector<SaveCase> cases = {
        {"into an empty file", "", ann},
        {"at the end", bob, bob + ann},
        {"a missing line end", "Bob" + kBare, bob + ann},
        {"LF stays LF", "Bob" + kBare + "\nCid" + kBare + "\n", "Bob" + kBare + "\nCid" + kBare + "\n" + ann},
        {"quotes, blanks and rubbish stay", "\"Bob\" , 1\r\n?\r\n", ann + "\"Bob\" , 1\r\n?\r\n"},
        {"in front of an empty name", bob + "\r\n\r\nnote\r\n", bob + ann + "\r\n\r\nnote\r\n"},
        {"replaced", "ANN" + kOld + bob, bob + ann, {kYes}},
        {"not replaced", "ANN" + kOld, "ANN" + kOld + ann, {kNo}},
        {"asked for each", oldAnn + "ann" + kOld, oldAnn + ann, {kNo, kYes}},
        {"one of two equal records", oldAnn + oldAnn, oldAnn + ann, {kYes, kNo}},
        {"in front of a damaged record", bob + "Ann,1\r\n" + bob, bob + ann + "Ann,1\r\n" + bob},
        {"a bare CR at the end", "Bob,1,2\r", ann + "Bob,1,2\r\n"},
        {"bare CRs", "Bob" + kBare + "\rCid" + kBare + "\r", bob + "Cid" + kOld + ann},
        {"two CRs and no LF", "Bob" + kBare + "\r\r", bob + ann},
        {"a mark inside", bob + byteOrderMark + oldAnn, bob + ann, {kYes}},
        {"a line of a mark", bob + byteOrderMark + "\r\n" + bob, bob + bob + ann},
        {"the DOS end mark", bob + "\x1A", bob + ann},
        {"a DOS end mark inside", bob + "\x1A\r\n" + oldAnn, bob + ann, {kYes}},
        {"a damaged record replaced",
         "Ann,30 Xxx 2000,12.30,P,-1,-002.21,-33.52\r\n" + bob,
         ann + bob,
         {kYes}},
        {"a name with control characters",
         "",
         "A B" + kRest,
         {},
         "\xEF\xBB\xBF"
         "A\x1B"
         "B\x07"},
        {"Windows-1252 becomes UTF-8", "Ren\xE9" + kOld, "René" + kOld + ann},
        {"accents in either case", "René" + kOld, "RENÉ" + kRest, {kYes}, "RENÉ"},
        {"a byte order mark", byteOrderMark + bob, byteOrderMark + bob + ann},
        {"a name in quotes", "", "\"\"\"Ann\"\"\"" + kRest, {}, "\"Ann\""},
        {"a nickname", "", "Ann \"A\" Lee" + kRest, {}, "Ann \"A\" Lee"},
    };
    const ScratchDirectory directory;
    for (const SaveCase& test : cases) {
        const Path file = directory.Write("MY.FIL", test.before);
        RecordedMessages messages;
        messages.answers = test.answers;
        EXPECT_TRUE(SaveTo(file, test.name, messages)) << test.what;
        EXPECT_EQ(FileContent(directory / "MY.FIL"), test.after) << test.what;
        EXPECT_EQ(FileContent(directory / "MY.OLD"), test.before) << test.what;
        EXPECT_TRUE(ListShowsTheNewRecord(file)) << test.what;
        EXPECT_EQ(messages.asked.size(), test.answers.size()) << test.what;
        EXPECT_EQ(directory.Names(), (std::vector<std::string>{"MY.FIL", "MY.OLD"})) << test.what;
    }
}

TEST(NameSavingTest, AsksInTheDescribedWords) {
    const ScratchDirectory directory;
    RecordedMessages messages;
    messages.answers = {Answer::Yes};
    SaveTo(directory.Write("MY.FIL", "Ann" + kOld), "ANN", messages);
    EXPECT_EQ(messages.asked.at(0).title, "Ann already exists");
    EXPECT_EQ(
        messages.asked[0].text,
        "There is already a name on file matching your current name with the following associated data: "
        "\r\n\r\nDate =  01 Jan 2000\r\nTime =  12.30 P\r\nTime zone =  -1\r\nLongitude =  -002.21\r\n"
        "Latitude =  -33.52\r\n\r\nDo you want to replace it?\r\n\r\nAnswering 'NO' will append the "
        "current name and data to file, not replace the existing entry.");
}

TEST(NameSavingTest, RefusesWhatNoReaderWouldSee) {
    const ScratchDirectory directory;
    const Path file = directory.Write("MY.FIL", "Bob" + kOld);
    constexpr auto kInput = "Warning!: Error in natal input data section. Please correct.";
    const struct {
        std::string NatalEntry::*box;
        const char* text;
        EntryField field;
    } cases[] = {{&NatalEntry::year, "19490", EntryField::Year},
                 {&NatalEntry::year, "0000", EntryField::Year},
                 {&NatalEntry::year, "0049", EntryField::Year},
                 {&NatalEntry::timeZone, "5-", EntryField::TimeZone},
                 {&NatalEntry::timeZone, "40", EntryField::TimeZone},
                 {&NatalEntry::timeZone, "-3", EntryField::TimeZone},
                 {&NatalEntry::month, "13", EntryField::Month},
                 {&NatalEntry::birthMinute, "100", EntryField::BirthMinute},
                 {&NatalEntry::birthMinute, "77", EntryField::BirthMinute},
                 {&NatalEntry::birthMinute, "", EntryField::BirthMinute},
                 {&NatalEntry::latMin, "", EntryField::LatMin},
                 {&NatalEntry::latDeg, "40000", EntryField::LatDeg},
                 {&NatalEntry::name, "  ", EntryField::Name}};
    RecordedMessages messages;
    const auto save = [&](const NatalEntry& entry, const std::string& chosen) {
        return SaveRecord(
            entry, [&] { return chosen; }, messages);
    };
    for (const auto& test : cases) {
        NatalEntry entry = Entry("Ann");
        entry.*test.box = test.text;
        const SaveOutcome outcome = save(entry, file.string());
        EXPECT_FALSE(outcome) << test.text;
        EXPECT_EQ(outcome.toCorrect, test.field) << test.text;
        EXPECT_EQ(messages.TakeTold(), std::vector<std::string>{kInput}) << test.text;
    }
    EXPECT_EQ(save(Entry("Lee, Ann"), file.string()).toCorrect, EntryField::Name);
    EXPECT_EQ(messages.TakeTold().size(), 1U);
    EXPECT_FALSE(save(Entry("Ann"), "").toCorrect) << "cancelled";
    EXPECT_EQ(messages.told.size(), 0U);
    EXPECT_EQ(FileContent(file), "Bob" + kOld);
    NatalEntry polar = Entry("Ann");
    polar.latDeg = "78";
    EXPECT_TRUE(save(polar, file.string())) << "some house systems are computed there";
}

TEST(NameSavingTest, WritesNothingOverABinaryFileOrADirectory) {
    const ScratchDirectory directory;
    const std::string binary(
        "\xFF\xFE"
        "A\0n\0",
        6);
    RecordedMessages messages;
    EXPECT_FALSE(SaveTo(directory.Write("MY.FIL", binary), "Ann", messages));
    EXPECT_FALSE(SaveTo(directory.path(), "Ann", messages));
    EXPECT_FALSE(SaveTo("/dev/full", "Ann", messages));
    EXPECT_EQ(messages.told.size(), 3U);
    EXPECT_EQ(FileContent(directory / "MY.FIL"), binary);
}

TEST(NameSavingTest, KeepsWhatAnotherProgramWritesMeanwhile) {
    const ScratchDirectory directory;
    const Path file = directory.Write("MY.FIL", "Ann" + kOld);
    RecordedMessages messages;
    messages.answers = {Answer::Yes};
    messages.whileAsking = [&] { directory.Write("MY.FIL", "Ann" + kOld + "Eve" + kOld); };
    EXPECT_TRUE(SaveTo(file, "Ann", messages));
    EXPECT_EQ(FileContent(directory / "MY.FIL"), "Eve" + kOld + "Ann" + kRest);
    EXPECT_EQ(messages.asked.size(), 1U) << "the answer holds when the saving is done again";
}

TEST(NameSavingTest, GivesUpWhenTheFileNeverRests) {
    const ScratchDirectory directory;
    const Path file = directory.Write("MY.FIL", "Ann" + kOld);
    RecordedMessages messages;
    messages.answers.assign(100, Answer::Yes);
    int change = 0;
    messages.whileAsking = [&] {
        directory.Write("MY.FIL",
                        "Ann," + std::to_string(++change) + " Jan 2000,12.30,P,-1,-002.21,-33.52\r\n");
    };
    EXPECT_FALSE(SaveTo(file, "Ann", messages));
    EXPECT_NE(messages.told.back().text.find("Another program"), std::string::npos);
    EXPECT_EQ(directory.Names(), std::vector<std::string>{"MY.FIL"});
    EXPECT_EQ(FileContent(file).substr(0, 6), "Ann," + std::to_string(change));
}

// Every point at which a disk can be full: the file may take `limit` bytes and no more.
TEST(NameSavingTest, SurvivesAFullDiskAtEveryByte) {
    const ScratchDirectory directory;
    const std::string before = "Bob" + kOld;
    const Path file = directory.Write("MY.FIL", before);
    const std::string after = before + "Ann" + kRest;
    std::vector<std::string> wrong;
    for (rlim_t limit = 0; limit < after.size(); ++limit) {
        RecordedMessages messages;
        const bool saved = [&] {
            const FileSizeLimit full(limit);
            return SaveTo(file, "Ann", messages);
        }();
        if (saved || messages.told.size() != 1 || FileContent(directory / "MY.FIL") != before) {
            wrong.push_back(std::to_string(limit));
        }
    }
    EXPECT_EQ(wrong, std::vector<std::string>{});
    EXPECT_EQ(directory.Names(), std::vector<std::string>{"MY.FIL"}) << "no backup, nothing left behind";
}

// Runs in a child of a user without rights, because the super-user may write anywhere.
template <typename Action>
int StatusOfChild(Action action) {
    const pid_t child = ::fork();
    if (child == 0) {
        if (::geteuid() == 0 && ::setuid(65534) != 0) ::_exit(99);
        ::_exit(action() ? 1 : 0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(NameSavingTest, RefusesWhereItMayNotWrite) {
    struct Case {
        const char* what;
        mode_t directory, file;
    };
    constexpr Case kCases[] = {{"read-only directory", 0555, 0666}, {"read-only file", 0777, 0444}};
    for (const Case& test : kCases) {
        const ScratchDirectory directory;
        const Path file = directory.Write("MY.FIL", "Bob" + kOld);
        ::chmod(file.c_str(), test.file);
        ::chmod(directory.path().c_str(), test.directory);
        const int status = StatusOfChild([&] {
            RecordedMessages messages;
            return SaveTo(file, "Ann", messages) || messages.told.size() != 1;
        });
        EXPECT_EQ(status, 0) << test.what;
        EXPECT_EQ(FileContent(directory / "MY.FIL"), "Bob" + kOld) << test.what;
        ::chmod(directory.path().c_str(), 0755);
        EXPECT_EQ(directory.Names(), std::vector<std::string>{"MY.FIL"}) << test.what;
    }
}

TEST(NameSavingTest, RefusesWithoutABackup) {
    const ScratchDirectory directory;
    const Path file = directory.Write("MY.FIL", "Bob" + kOld);
    std::filesystem::create_directory(directory / "MY.OLD");
    directory.Write("MY.OLD/full", "");
    RecordedMessages messages;
    EXPECT_FALSE(SaveTo(file, "Ann", messages));
    EXPECT_EQ(FileContent(file), "Bob" + kOld);
    EXPECT_EQ(directory.Names(), (std::vector<std::string>{"MY.FIL", "MY.OLD"}));
}

TEST(NameSavingTest, BacksUpWhatALinkPointsTo) {
    const ScratchDirectory directory;
    directory.Write("REAL.FIL", "Bob" + kOld);
    std::filesystem::create_symlink("REAL.FIL", directory / "MY.FIL");
    RecordedMessages messages;
    EXPECT_TRUE(SaveTo(directory / "MY.FIL", "Ann", messages));
    EXPECT_EQ(FileContent(directory / "REAL.FIL"), "Bob" + kOld + "Ann" + kRest);
    EXPECT_EQ(FileContent(directory / "MY.OLD"), "Bob" + kOld);
}

// The whole records "Person 0", "Person 1" ... of a list, or -1 when it holds anything else.
int CountPersons(const std::string& content) {
    std::istringstream lines(content);
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count) {
        if (line + "\n" != "Person " + std::to_string(count) + kRest) return -1;
    }
    return count;
}

pid_t StartSaving(const Path& file, int first, int count) {
    const pid_t child = ::fork();
    if (child != 0) return child;
    RecordedMessages messages;
    for (int i = first; i < first + count; ++i) {
        if (!SaveTo(file, "Person " + std::to_string(i), messages)) ::_exit(1);
    }
    ::_exit(0);
}

// A program killed at any moment of a save leaves the old or the new list, and the backup the one before.
TEST(NameSavingTest, SurvivesBeingKilledAtAnyMoment) {
    const ScratchDirectory directory;
    const Path file = directory.Write("MY.FIL", "Person 0" + kRest);
    directory.Write("MY.OLD", "");
    std::minstd_rand random(4);
    constexpr int kKills = 300;
    int count = 1;
    unsigned most =
        8000;  // microseconds until the kill; more where the disk is so slow that no save comes to an end
    for (int kill = 0; kill < kKills; ++kill) {
        const pid_t child = StartSaving(file, count, 1'000'000);
        std::this_thread::sleep_for(std::chrono::microseconds(500 + random() % most));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const int present = CountPersons(FileContent(directory / "MY.FIL"));
        const int backup = CountPersons(FileContent(directory / "MY.OLD"));
        ASSERT_GE(present, count) << "after " << kill << " kills";
        ASSERT_TRUE(backup == present || backup == present - 1) << backup << " before " << present;
        most = present == count ? most + most / 16 : std::max(8000U, most - most / 4);
        count = present;
    }
    EXPECT_GT(count, kKills / 10) << "saves did happen";
    EXPECT_LE(directory.Names().size(), 4U) << "what killed programs leave does not pile up";
    RecordedMessages messages;
    EXPECT_TRUE(SaveTo(file, "Person " + std::to_string(count), messages));
    EXPECT_EQ(directory.Names(), (std::vector<std::string>{"MY.FIL", "MY.OLD"}));
}

TEST(NameSavingTest, TwoProgramsThatSaveAtOnceLoseNothing) {
    const ScratchDirectory directory;
    const Path file = directory.Write("MY.FIL", "");
    constexpr int kEach = 40;
    const pid_t first = StartSaving(file, 0, kEach);
    const pid_t second = StartSaving(file, kEach, kEach);
    for (const pid_t child : {first, second}) {
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    const std::string content = FileContent(directory / "MY.FIL");
    for (int i = 0; i < 2 * kEach; ++i) {
        EXPECT_NE(content.find("Person " + std::to_string(i) + ","), std::string::npos) << i;
    }
}

}  // namespace
}  // namespace tolvanis
