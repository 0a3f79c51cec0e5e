// Saving into a names file: nothing a user has is ever lost, whatever goes wrong and when.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <random>
#include <sstream>
#include <thread>

#include "birthdata/names_file.h"
#include "support.h"

namespace tolvanis {
namespace {

NatalEntry Entry(const std::string& name) {
    return {name, "9", "22", "1949", "9", "5", false, "5", "73", "59", false, "40", "45", false};
}

const std::string kRest = ",22 Sep 1949,9.05,A,5,073.59,40.45\r\n";
const std::string kOld = ",01 Jan 2000,12.30,P,-1,-002.21,-33.52\r\n";

bool SaveTo(const Path& file, const std::string& name, Messages& messages) {
    return SaveRecord(
        Entry(name), [&] { return file.string(); }, messages);
}

struct SaveCase {
    const char* what;
    std::string before;
    std::string name;
    std::vector<Answer> answers;
    std::string after;
};

TEST(NameSavingTest, KeepsEveryOtherLineAsItIs) {
    const std::vector<SaveCase> cases = {
        {"into an empty file", "", "Ann", {}, "Ann" + kRest},
        {"at the end", "Bob" + kOld, "Ann", {}, "Bob" + kOld + "Ann" + kRest},
        {"a missing line end", "Bob,1,2", "Ann", {}, "Bob,1,2\r\nAnn" + kRest},
        {"LF stays LF", "Bob,1\nCid,2\n", "Ann", {}, "Bob,1\nCid,2\nAnn" + kRest},
        {"quotes, blanks and rubbish stay",
         "\"Bob\" , 1\r\n?\r\n",
         "Ann",
         {},
         "\"Bob\" , 1\r\n?\r\nAnn" + kRest},
        {"in front of an empty name",
         "Bob" + kOld + "\r\n\r\nnote\r\n",
         "Ann",
         {},
         "Bob" + kOld + "Ann" + kRest + "\r\n\r\nnote\r\n"},
        {"replaced", "ANN" + kOld + "Bob" + kOld, "Ann", {Answer::Yes}, "Bob" + kOld + "Ann" + kRest},
        {"not replaced", "ANN" + kOld, "Ann", {Answer::No}, "ANN" + kOld + "Ann" + kRest},
        {"asked for each",
         "Ann" + kOld + "ann" + kOld,
         "Ann",
         {Answer::No, Answer::Yes},
         "Ann" + kOld + "Ann" + kRest},
        {"one of two equal records",
         "Ann" + kOld + "Ann" + kOld,
         "Ann",
         {Answer::Yes, Answer::No},
         "Ann" + kOld + "Ann" + kRest},
        {"a damaged record of the same name", "Ann,1\r\n", "Ann", {}, "Ann,1\r\nAnn" + kRest},
        {"Windows-1252 becomes UTF-8", "Ren\xE9" + kOld, "Ann", {}, "René" + kOld + "Ann" + kRest},
        {"accents in either case", "René" + kOld, "RENÉ", {Answer::Yes}, "RENÉ" + kRest},
        {"a byte order mark",
         "\xEF\xBB\xBF"
         "Ann" +
             kOld,
         "Bob",
         {},
         "\xEF\xBB\xBF"
         "Ann" +
             kOld + "Bob" + kRest},
        {"a name in quotes", "", "\"Ann\"", {}, "\"\"\"Ann\"\"\"" + kRest},
        {"a nickname", "", "Ann \"A\" Lee", {}, "Ann \"A\" Lee" + kRest},
    };
    const ScratchDirectory directory;
    for (const SaveCase& test : cases) {
        const Path file = directory.Write("MY.FIL", test.before);
        RecordingMessages messages;
        messages.answers = test.answers;
        EXPECT_TRUE(SaveTo(file, test.name, messages)) << test.what;
        EXPECT_EQ(FileContent(directory / "MY.FIL"), test.after) << test.what;
        EXPECT_EQ(FileContent(directory / "MY.OLD"), test.before) << test.what;
        EXPECT_EQ(messages.told.size(), test.answers.size()) << test.what;
        EXPECT_EQ(directory.Names(), (std::vector<std::string>{"MY.FIL", "MY.OLD"})) << test.what;
    }
}

TEST(NameSavingTest, AsksInTheDescribedWords) {
    const ScratchDirectory directory;
    RecordingMessages messages;
    SaveTo(directory.Write("MY.FIL", "Ann" + kOld), "ANN", messages);
    EXPECT_EQ(messages.told.at(0).title, "Ann already exists");
    EXPECT_EQ(
        messages.told[0].text,
        "There is already a name on file matching your current name with the following associated data: "
        "\r\n\r\nDate =  01 Jan 2000\r\nTime =  12.30 P\r\nTime zone =  -1\r\nLongitude =  -002.21\r\n"
        "Latitude =  -33.52\r\n\r\nDo you want to replace it?\r\n\r\nAnswering 'NO' will append the "
        "current name and data to file, not replace the existing entry.");
}

TEST(NameSavingTest, RefusesWhatNoReaderWouldSee) {
    const ScratchDirectory directory;
    const Path file = directory.Write("MY.FIL", "Bob" + kOld);
    NatalEntry longYear = Entry("Ann"), noZone = Entry("Ann"), noMonth = Entry("Ann"), minutes = Entry("Ann");
    longYear.year = "19490";
    noZone.timeZone = "5-";
    noMonth.month = "13";
    minutes.birthMinute = "100";
    for (const NatalEntry& entry : {Entry("Lee, Ann"), Entry("  "), longYear, noZone, noMonth, minutes}) {
        RecordingMessages messages;
        EXPECT_FALSE(SaveRecord(
            entry, [&] { return file.string(); }, messages))
            << entry.name << entry.year;
        EXPECT_EQ(messages.told.size(), 1U);
    }
    RecordingMessages messages;
    EXPECT_FALSE(SaveRecord(
        Entry("Ann"), [] { return std::string(); }, messages))
        << "cancelled";
    EXPECT_TRUE(messages.told.empty());
    EXPECT_EQ(FileContent(directory / "MY.FIL"), "Bob" + kOld);
}

TEST(NameSavingTest, WritesNothingOverABinaryFileOrADirectory) {
    const ScratchDirectory directory;
    const std::string binary(
        "\xFF\xFE"
        "A\0n\0",
        6);
    RecordingMessages messages;
    EXPECT_FALSE(SaveTo(directory.Write("MY.FIL", binary), "Ann", messages));
    EXPECT_FALSE(SaveTo(directory.path(), "Ann", messages));
    EXPECT_FALSE(SaveTo("/dev/full", "Ann", messages));
    EXPECT_EQ(messages.told.size(), 3U);
    EXPECT_EQ(FileContent(directory / "MY.FIL"), binary);
}

TEST(NameSavingTest, NeverMakesTheFileItsOwnBackup) {
    EXPECT_EQ(NamesBackupPath("/a/NAMES.FIL"), Path("/a/NAMES.OLD"));
    EXPECT_EQ(NamesBackupPath("/a/names.old"), Path("/a/names.old.OLD"));
    EXPECT_EQ(NamesBackupPath("/a/FIL"), Path("/a/FIL.OLD"));
    EXPECT_EQ(NamesBackupPath("/a/N\u00C4MEN.\u00C4\u00D6\u00DC"), Path("/a/N\u00C4MEN.OLD"));
}

TEST(NameSavingTest, KeepsWhatAnotherProgramWritesMeanwhile) {
    const ScratchDirectory directory;
    const Path file = directory.Write("MY.FIL", "Ann" + kOld);
    RecordingMessages messages;
    messages.answers = {Answer::Yes};
    messages.whileAsking = [&] { directory.Write("MY.FIL", "Ann" + kOld + "Eve" + kOld); };
    EXPECT_TRUE(SaveTo(file, "Ann", messages));
    EXPECT_EQ(FileContent(directory / "MY.FIL"), "Eve" + kOld + "Ann" + kRest);
    EXPECT_EQ(messages.told.size(), 1U) << "the answer holds when the saving is done again";
}

TEST(NameSavingTest, GivesUpWhenTheFileNeverRests) {
    const ScratchDirectory directory;
    const Path file = directory.Write("MY.FIL", "Ann" + kOld);
    RecordingMessages messages;
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
    std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit unlimited {};
    ::getrlimit(RLIMIT_FSIZE, &unlimited);
    std::vector<std::string> wrong;
    for (rlim_t limit = 0; limit < after.size(); ++limit) {
        RecordingMessages messages;
        const struct rlimit small = {limit, unlimited.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
        const bool saved = SaveTo(file, "Ann", messages);
        ::setrlimit(RLIMIT_FSIZE, &unlimited);
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
            RecordingMessages messages;
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
    std::filesystem::create_directory((directory / "MY.OLD"));
    directory.Write("MY.OLD/full", "");
    RecordingMessages messages;
    EXPECT_FALSE(SaveTo(file, "Ann", messages));
    EXPECT_EQ(FileContent(directory / "MY.FIL"), "Bob" + kOld);
    EXPECT_EQ(directory.Names(), (std::vector<std::string>{"MY.FIL", "MY.OLD"}));
}

TEST(NameSavingTest, FollowsALinkAndKeepsTheMode) {
    const ScratchDirectory directory;
    ::chmod(directory.Write("REAL.FIL", "Bob" + kOld).c_str(), 0640);
    std::filesystem::create_symlink("REAL.FIL", (directory / "MY.FIL"));
    RecordingMessages messages;
    EXPECT_TRUE(SaveTo((directory / "MY.FIL"), "Ann", messages));
    EXPECT_TRUE(std::filesystem::is_symlink((directory / "MY.FIL")));
    EXPECT_EQ(FileContent(directory / "REAL.FIL"), "Bob" + kOld + "Ann" + kRest);
    EXPECT_EQ(FileContent(directory / "MY.OLD"), "Bob" + kOld);
    struct stat status {};
    ::stat((directory / "REAL.FIL").c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);
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
    RecordingMessages messages;
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
    for (int kill = 0; kill < kKills; ++kill) {
        const pid_t child = StartSaving(file, count, 1'000'000);
        std::this_thread::sleep_for(std::chrono::microseconds(500 + random() % 8000));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const int present = CountPersons(FileContent(directory / "MY.FIL"));
        const int backup = CountPersons(FileContent(directory / "MY.OLD"));
        ASSERT_GE(present, count) << "after " << kill << " kills";
        ASSERT_TRUE(backup == present || backup == present - 1) << backup << " before " << present;
        count = present;
    }
    EXPECT_GT(count, kKills / 10) << "saves did happen";
    EXPECT_LE(directory.Names().size(), 4U) << "what killed programs leave does not pile up";
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
