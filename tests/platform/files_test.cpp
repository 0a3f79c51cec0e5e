#include "platform/files.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <cstring>
#include <sstream>
#include <thread>

#include "platform/clock.h"
#include "platform/file_replacing.h"
#include "platform/terminal.h"
#include "support.h"

namespace tolvanis {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
namespace fs = std::filesystem;

TEST(Files, LinesEndInAnyWay) {
    const struct {
        std::string content;
        std::vector<std::string> lines;
    } cases[] = {{"\xEF\xBB\xBFone\r\ntwo\n\r\nZo\xEB\r\nlast", {"one", "two", "", "Zoë", "last"}},
                 {"", {}},
                 {"one\rtwo\r\r\nthree\r", {"one", "two", "three"}},
                 {"one\n\xEF\xBB\xBFtwo\n\xEF\xBB\xBF\nthree", {"one", "two", "three"}},
                 {"one\r\n\x1A", {"one"}},
                 {"one\x1A", {"one"}},
                 {"one\n\x1A\r\n\x1Atwo", {"one", "two"}},
                 {std::string(70000, 'x') + "\r\n" + std::string(65535, 'y') + "\r\nz",
                  {std::string(70000, 'x'), std::string(65535, 'y'), "z"}}};
    const ScratchDirectory directory;
    for (const auto& test : cases) {
        EXPECT_EQ(*ReadLines(directory.Write("a.txt", test.content)), test.lines) << test.content;
        LineReader inMemory = LineReader::OfText(test.content);
        std::vector<std::string> lines;
        for (std::string line; inMemory.Next(line);) lines.push_back(line);
        EXPECT_EQ(lines, test.lines) << test.content;
    }
}

TEST(Files, WhatCannotBeReadIsNamed) {
    const ScratchDirectory directory;
    fs::create_symlink("LOOP", directory / "LOOP");
    fs::create_symlink("/proc/self/mem", directory / "MEMORY");
    fs::create_symlink("/dev/zero", directory / "ENDLESS");
    const std::pair<Path, std::string> cases[] = {
        {directory / "NONE.TXT", "NONE.TXT: No such file"},
        {directory.path(), "Is a directory"},
        {directory / "LOOP", "LOOP: Too many levels of symbolic links"},
        {directory / "MEMORY", "MEMORY: Input/output error"},
        {directory / "ENDLESS", "has more than"},
        {directory / (std::string(300, 'x')), "File name too long"}};
    for (const auto& [path, reason] : cases) {
        EXPECT_THAT(ReadLines(path).message(), HasSubstr(reason));
        EXPECT_THAT(ReadBytes(path).message(), HasSubstr(reason));
        std::array<float, 3> values{};
        EXPECT_THAT(ReadNumberLines(path, values).message(), HasSubstr(reason));
    }
    const auto longLine = directory.Write("LONG", "a\n" + std::string(kLongestLine + 1, 'x') + "\n");
    EXPECT_THAT(ReadLines(longLine).message(), HasSubstr("LONG: line 2 has more than 1048576 bytes"));
}

TEST(Files, FoundWithoutRegardToCaseAndSeparator) {
    const ScratchDirectory directory;
    fs::create_directory(directory / "Sub");
    const auto path = directory.Write("Sub/Sign_Lib.txt", "x");
    EXPECT_EQ(FindFile(directory.path(), "\\SUB\\SIGN_LIB.TXT"), path);
    EXPECT_EQ(FindPath(directory.path().string() + "\\sub\\sign_lib.TXT"), path);
    EXPECT_EQ(FindFile(directory.path(), "NONE.TXT"), directory / "NONE.TXT");
    fs::create_symlink("nowhere", directory / "Dangling");
    EXPECT_EQ(FindFile(directory.path(), "DANGLING"), directory / "Dangling");
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
    EXPECT_TRUE(ReadNumberLines(directory.Write("huge", "9e99999\r\n-9e300\r\n"), values));
    EXPECT_THAT(values, ElementsAre(9, 9999999.0F, -9999999.0F, 1234567.0F, 9));
    EXPECT_EQ(*ReadNumberLines(directory.Write("m", "1\n2\n3\n4\n5\n6"), values), 6);
    EXPECT_THAT(values, ElementsAre(9, 1, 2, 3, 4)) << "lines beyond the table are only counted";
}

TEST(Files, ANewOutputIsTheVeryNameGiven) {
    const ScratchDirectory directory;
    directory.Write("Ann.DOC", "Smith");
    ASSERT_TRUE(ReplaceFile(directory / "ANN.DOC", "Miller"));
    EXPECT_EQ(FileContent(directory / "Ann.DOC"), "Smith");
    EXPECT_EQ(FileContent(directory / "ANN.DOC"), "Miller");
    EXPECT_EQ(OtherSpelling(directory / "ANN.DOC"), std::nullopt);
    EXPECT_EQ(OtherSpelling(directory / "BOB.DOC"), std::nullopt);
    fs::remove(directory / "ANN.DOC");
    EXPECT_EQ(OtherSpelling(directory / "ANN.DOC"), directory / "Ann.DOC");
}

TEST(Files, LinksAreFollowedAndNeverReplaced) {
    const ScratchDirectory directory;
    const auto path = directory.Write("real.txt", "old");
    fs::permissions(path, fs::perms(0640));
    const bool gives = ::chown(path.c_str(), 1, 2) == 0;  // as root may
    fs::create_directory(directory / "sub");
    fs::create_symlink("../real.txt", directory / "sub/link.txt");
    fs::create_symlink("sub/link.txt", directory / "link.txt");
    fs::create_symlink("sub/to come.txt", directory / "dangling");
    fs::create_symlink("nowhere/a.txt", directory / "lost");
    fs::create_symlink("loop", directory / "loop");
    ASSERT_TRUE(ReplaceFile(directory / "link.txt", "new"));
    EXPECT_EQ(FileContent(path), "new");
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0640));
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_TRUE(!gives || (status.st_uid == 1 && status.st_gid == 2)) << "a file stays its owner's";
    ASSERT_TRUE(ReplaceFile(directory / "dangling", "made"));
    EXPECT_EQ(FileContent(directory / "sub/to come.txt"), "made");
    EXPECT_THAT(ReplaceFile(directory / "lost", "x").message(), HasSubstr("lost: No such file"));
    EXPECT_THAT(ReplaceFile(directory / "loop", "x").message(), HasSubstr("Too many levels"));
    for (const char* link : {"link.txt", "dangling", "lost", "loop"}) {
        EXPECT_TRUE(fs::is_symlink(directory / link)) << link;
    }
    EXPECT_EQ(directory.Names().size(), 6U) << "nothing is left behind";
}

TEST(Files, WhatIsNoRegularFileIsWrittenTo) {
    const ScratchDirectory directory;
    const auto log = directory.Write("log", "before\n");
    const int appending = ::open(log.c_str(), O_WRONLY | O_APPEND);
    ASSERT_TRUE(ReplaceFile("/dev/fd/" + std::to_string(appending), "after\n"));
    ::close(appending);
    EXPECT_EQ(FileContent(log), "before\nafter\n");
    fs::create_symlink("/dev/full", directory / "full");
    EXPECT_THAT(ReplaceFile(directory / "full", "x").message(), HasSubstr("No space left on device"));
    EXPECT_THAT(ReplaceIfUnchanged(directory / "full", directory / "full.OLD", "", "x").message(),
                HasSubstr("no regular file"));
    ASSERT_EQ(::mkfifo((directory / "pipe").c_str(), 0600), 0);
    const int reading = ::open((directory / "pipe").c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_TRUE(ReplaceFile(directory / "pipe", "through"));
    std::array<char, 8> got{};
    EXPECT_EQ(::read(reading, got.data(), got.size()), 7);
    ::close(reading);
    EXPECT_TRUE(fs::is_fifo(directory / "pipe"));
}

TEST(Files, APipeThatNobodyServesIsGivenUp) {
    const ScratchDirectory directory;
    const Path pipe = directory / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_THAT(ReadBytes(pipe).message(), HasSubstr("nothing writes into this pipe"));
    EXPECT_THAT(ReplaceFile(pipe, "x").message(), HasSubstr("nothing reads from this pipe"));
    const auto write = [&](int pause) {
        return std::thread([=] {
            const int opened = ::open(pipe.c_str(), O_WRONLY);
            for (const char* part : {"first\n", "second\n"}) {
                std::this_thread::sleep_for(std::chrono::milliseconds(pause));
                EXPECT_GT(::write(opened, part, std::strlen(part)), 0);
            }
            ::close(opened);
        });
    };
    for (const int pause : {0, 50}) {
        std::thread writer = write(pause);
        const Result<std::string> read = ReadBytes(pipe);
        EXPECT_EQ(read ? *read : read.message(), "first\nsecond\n") << pause;
        writer.join();
    }
}

TEST(Files, NamesMayBeAsLongAsTheSystemAllows) {
    const ScratchDirectory directory;
    const Path path = directory / (std::string(251, 'n') + ".FIL");
    ASSERT_TRUE(ReplaceFile(path, "old"));
    const auto replaced = ReplaceIfUnchanged(path, BackupPath(path), "old", "new");
    ASSERT_TRUE(replaced) << replaced.message();
    EXPECT_EQ(FileContent(path), "new");
    EXPECT_EQ(FileContent(directory / (std::string(251, 'n') + ".OLD")), "old");
}

TEST(Files, BackupsHaveNamesOfTheirOwn) {
    const std::pair<Path, Path> cases[] = {{"/a/NAMES.FIL", "/a/NAMES.OLD"},
                                           {"/a/names.old", "/a/names.old.OLD"},
                                           {"/a/FIL", "/a/FIL.OLD"},
                                           {"/a/GA_MA.LL", "/a/GA_MA.OLD"},
                                           {"/a/N\u00C4MEN.\u00C4\u00D6\u00DC", "/a/N\u00C4MEN.OLD"}};
    for (const auto& [file, backup] : cases) EXPECT_EQ(BackupPath(file), backup);
    const ScratchDirectory directory;
    const auto path = directory.Write("A.FIL", "old");
    fs::create_symlink("A.FIL", directory / "A.OLD");
    EXPECT_THAT(ReplaceIfUnchanged(path, BackupPath(path), "old", "new").message(),
                HasSubstr("A.OLD: it is a link to the file itself"));
    EXPECT_EQ(FileContent(path), "old");
}

// What a killed program leaves goes with the next save; what a living one is writing stays.
TEST(Files, OnlyFilesThatNobodyWritesAnyMoreAreRemoved) {
    const ScratchDirectory directory;
    const auto left = directory.Write(".tolvanis-save-aaaaaa", "of a killed program");
    const auto users = directory.Write(".tolvanis-notes1", "of the user's");
    const auto path = directory / "a.txt";
    ASSERT_TRUE(ReplaceFile(path, [&](const Sink& sink) {
        EXPECT_FALSE(fs::exists(left));
        EXPECT_TRUE(ReplaceFile(directory / "b.txt", "meanwhile"));
        return sink("whole");
    }));
    EXPECT_EQ(FileContent(path), "whole");
    EXPECT_TRUE(fs::exists(users));
    EXPECT_EQ(directory.Names().size(), 3U);
}

TEST(Files, ALockThatDoesNotComeFreeIsAFault) {
    const ScratchDirectory directory;
    const auto path = directory.Write("A.FIL", "old");
    const int other = ::open(directory.path().c_str(), O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(::flock(other, LOCK_EX), 0);
    EXPECT_THAT(ReplaceIfUnchanged(path, BackupPath(path), "old", "new").message(),
                HasSubstr("another program is saving"));
    ::close(other);
    EXPECT_EQ(FileContent(path), "old");
    EXPECT_EQ(directory.Names().size(), 1U);
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
                 {"%d. %b %Y", "kl. %H.%M %Z", 1, 1},
                 {"%A, %-d de %B de %Y", "%OI:%M", 1, 0},
                 {"%EY\u5E74%m\u6708%d\u65E5", "%p%I\u6642", 2, 0},
                 {"date: %", "100%", 1, 1},
                 {"", "", 1, 1}};
    for (const auto& c : cases) {
        const DateTimeOrder order = OrderOfFormats(c.date, c.time);
        EXPECT_EQ(order.iDate, c.iDate) << c.date;
        EXPECT_EQ(order.iTime, c.iTime) << c.time;
    }
}

TEST(Clock, ZonesOfDamagedFilesGiveSomeTime) {
    for (const double hours : {1e300, -1e300, std::nan(""), 14.0}) {
        const LocalTime now = OnClockOfZone(HostClock(), hours);
        EXPECT_GT(now.date.year, 2000) << hours;
        EXPECT_GE(now.date.month, 1) << hours;
    }
}

// A program started without standard streams must not get a file of the user's as one of them.
TEST(Terminal, ClosedStreamsAreOccupied) {
    const ScratchDirectory directory;
    const pid_t child = ::fork();
    if (child == 0) {
        for (const int stream : {0, 1, 2}) ::close(stream);
        OccupyStandardStreams();
        const int file = ::open((directory / "a").c_str(), O_WRONLY | O_CREAT, 0600);
        const bool refused = ::write(1, "x", 1) == -1 && ::write(2, "x", 1) == -1;
        ::_exit(file > 2 && refused ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
}

TEST(Terminal, NothingToldControlsIt) {
    std::ostringstream errors;
    TellOn(errors,
           "a\x1B[2J\x7F\tb \xC2\x9B"
           "31m\nZo\xC3\xAB\n\x9B\n");
    EXPECT_EQ(errors.str(), "a [2J  b  31m\nZoë\n\xE2\x80\xBA\n");
}

}  // namespace
}  // namespace tolvanis
