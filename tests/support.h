#pragma once
// What several tests need.

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/resource.h>

#include <algorithm>
#include <csignal>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "astro/natal_chart.h"
#include "birthdata/name_record.h"
#include "platform/messages.h"

namespace tolvanis {

// An empty directory that vanishes with the test.
class ScratchDirectory {
  public:
    ScratchDirectory() {
        std::string name = (std::filesystem::temp_directory_path() / "tolvanis-test-XXXXXX").string();
        path_ = ::mkdtemp(name.data());
    }
    ~ScratchDirectory() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchDirectory(const ScratchDirectory&) = delete;
    ScratchDirectory& operator=(const ScratchDirectory&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

    std::filesystem::path Write(const std::string& name, const std::string& content) const {
        std::ofstream(path_ / name, std::ios::binary) << content;
        return path_ / name;
    }

    // The names of its entries, in order.
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path_)) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

  private:
    std::filesystem::path path_;
};

inline std::string FileContent(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// A message as its user has read it, "title: text", and its parts.
struct ReadMessage : std::string {
    ReadMessage(const std::string& itsTitle, const std::string& itsText, MessageIcon itsIcon)
        : std::string(itsTitle + ": " + itsText), title(itsTitle), text(itsText), icon(itsIcon) {}
    std::string title;
    std::string text;
    MessageIcon icon;
    friend void PrintTo(const ReadMessage& message, std::ostream* out) { *out << message.c_str(); }
};

// Records what it is told and asked, and gives the answers laid out beforehand.
class RecordedMessages : public Messages {
  public:
    std::vector<ReadMessage> told;
    std::vector<ReadMessage> asked;
    std::deque<Answer> answers;
    std::deque<std::string> texts;
    std::function<void()> whileAsking;  // what happens while a question is open

    void Tell(const std::string& title, const std::string& text, MessageIcon icon) override {
        told.emplace_back(title, text, icon);
    }
    bool AskYesNo(const std::string& title, const std::string& text, Answer /*preset*/) override {
        return Take(answers, title, text, Answer::No) == Answer::Yes;
    }
    Answer AskYesNoCancel(const std::string& title, const std::string& text) override {
        return Take(answers, title, text, Answer::Cancel);
    }
    std::string AskText(const std::string& title, const std::string& prompt) override {
        return Take(texts, title, prompt, std::string());
    }

    std::vector<std::string> TakeTold() {
        const std::vector<ReadMessage> taken = std::exchange(told, {});
        return {taken.begin(), taken.end()};
    }

  private:
    template <typename T>
    T Take(std::deque<T>& prepared, const std::string& title, const std::string& text, const T& otherwise) {
        asked.emplace_back(title, text, MessageIcon::Question);
        if (whileAsking) whileAsking();
        if (prepared.empty()) {
            ADD_FAILURE() << "nobody expected the question " << text;
            return otherwise;
        }
        const T answer = prepared.front();
        prepared.pop_front();
        return answer;
    }
};

// What follows a name in a line of a names file.
inline const std::string kRest = ",22 Sep 1949,9.05,A,5,073.59,40.45\r\n";

// The record of the charts that only need some birth.
inline const std::string kAnnSmith = "Ann Smith,22 Sep 1949,9.05,A,5,073.59,40.45";

// Lets this process write files of at most so many bytes, as a disk that fills up would.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) : kept_(Take()) {
        const rlimit limit{bytes, kept_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &kept_); }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

  private:
    static rlimit Take() {
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit{};
        ::getrlimit(RLIMIT_FSIZE, &limit);
        return limit;
    }
    rlimit kept_;
};

// The entry of a record in the names-file form, which must be a good one.
inline NatalEntry EntryOf(const std::string& record) {
    const auto parsed = ParseNameRecord(record);
    EXPECT_TRUE(parsed) << record << ": " << parsed.message();
    const auto entry = EntryFromRecord(*parsed);
    EXPECT_TRUE(entry) << record << ": " << entry.message();
    return entry ? *entry : NatalEntry{};
}

inline NatalData NatalOf(const std::string& record, HouseSystem system = HouseSystem::Placidus) {
    return ParseNatalData(EntryOf(record), {system}, 1);
}

inline ChartPositions ChartOf(const std::string& record, HouseSystem system = HouseSystem::Placidus) {
    const auto chart = ComputePositions(NatalOf(record, system));
    EXPECT_TRUE(chart) << record << ": " << chart.message();
    return chart ? *chart : ChartPositions{};
}

// The difference of two angles in degrees, -180 to 180.
inline double ArcBetween(double a, double b) {
    double arc = a - b;
    while (arc > 180.0) arc -= 360.0;
    while (arc < -180.0) arc += 360.0;
    return arc;
}

}  // namespace tolvanis
