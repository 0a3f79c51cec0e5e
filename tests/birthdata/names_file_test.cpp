// Reading of names files: whatever a file holds, the good records in front of the first fault are there.
#include "birthdata/names_file.h"

#include <gtest/gtest.h>

#include "support.h"

namespace tolvanis {
namespace {

const std::string kAnn = "Ann,22 Sep 1949,9.05,A,5,073.59,40.45";
const std::string kBob = "Bob,01 Jan 2000,12.00,P,-5.5,-072.50,-19.05";

struct FileCase {
    const char* what;
    std::string content;
    std::vector<std::string> names;
    int faultLine;  // 0 without a fault
};

TEST(NamesFileTest, ReadsGoodRecordsInFrontOfTheFirstFault) {
    const std::vector<FileCase> cases = {
        {"empty file", "", {}, 0},
        {"CR LF", kAnn + "\r\n" + kBob + "\r\n", {"Ann", "Bob"}, 0},
        {"LF, no final line end", kAnn + "\n" + kBob, {"Ann", "Bob"}, 0},
        {"byte order mark", "\xEF\xBB\xBF" + kAnn + "\r\n", {"Ann"}, 0},
        {"Windows-1252", "Ren\xE9 \x96,22 Sep 1949,9.05,A,5,073.59,40.45\r\n", {"René –"}, 0},
        {"quotes, blanks", " \"Lee, Ann\" ,22 Sep 1949 , 9.05,\"A\",5, 073.59 ,40.45", {"Lee, Ann"}, 0},
        {"nickname", "E \"Che\" G,14 Jun 1928,3.05,A,4,060.40,-32.57", {"E \"Che\" G"}, 0},
        {"empty line ends the list", kAnn + "\r\n\r\n" + kBob + "\r\n", {"Ann"}, 0},
        {"empty name ends the list", kAnn + "\r\n,1,2\r\nrubbish\r\n", {"Ann"}, 0},
        {"five fields", kAnn + "\r\nBob,01 Jan 2000,12.00,P,-5.5\r\n" + kBob, {"Ann"}, 2},
        {"a comma in the name", "Smith, Ann,22 Sep 1949,9.05,A,5,073.59,40.45", {}, 1},
        {"24-hour clock",
         "Ann,22 Sep 1949,21.05,P,5,073.59,40.45\nBob,22 Sep 1949,21.05,A,5,1,2",
         {"Ann"},
         2},
        {"year first", "Ann,1949 Sep 22,9.05,A,5,073.59,40.45", {"Ann"}, 0},
        {"the same name twice", kAnn + "\n" + kAnn, {"Ann", "Ann"}, 0},
    };
    const ScratchDirectory directory;
    for (const FileCase& test : cases) {
        const RecordList list = ReadNamesFile(directory.Write("A.FIL", test.content));
        std::vector<std::string> names;
        for (std::size_t i = 0; i < list.size(); ++i) names.push_back(NameAt(list, i));
        EXPECT_EQ(names, test.names) << test.what;
        EXPECT_EQ(list.fault() ? list.fault()->line : 0, test.faultLine) << test.what;
    }
}

TEST(NamesFileTest, SaysWhenThereIsNoReadableFile) {
    const ScratchDirectory directory;
    for (const Path& path : {(directory / "NONE.FIL"), directory.path()}) {
        const RecordList list = ReadNamesFile(path);
        ASSERT_TRUE(list.fault());
        EXPECT_EQ(list.size(), 0U);
        EXPECT_EQ(list.fault()->line, 0);
        RecordedMessages messages;
        TellNamesFault(*list.fault(), messages);
        EXPECT_NE(messages.told.at(0).text.find(path.string()), std::string::npos);
    }
}

TEST(NamesFileTest, FindsTheFirstRecordWithExactlyTheName) {
    const ScratchDirectory directory;
    const RecordList list =
        ReadNamesFile(directory.Write("A.FIL", "ann" + kAnn.substr(3) + "\n" + kAnn + "\n" + kAnn));
    EXPECT_EQ(FindName(list, "Ann"), 1U);
    EXPECT_EQ(FindName(list, "An"), std::nullopt);
}

}  // namespace
}  // namespace tolvanis
