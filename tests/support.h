#pragma once
// What several tests need.

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/resource.h>

#include <algorithm>
#include <csignal>
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

// Notes what it is told and answers what the test has prepared, in order; the last answer repeats.
class RecordingMessages : public Messages {
  public:
    struct Told {
        std::string title;
        std::string text;
        MessageIcon icon = MessageIcon::Question;
    };
    std::vector<Told> told;
    std::vector<Answer> answers = {Answer::Yes};
    std::vector<std::string> texts = {""};
    std::function<void()> whileAsking;  // what happens while a question is open

    void Tell(const std::string& title, const std::string& text, MessageIcon icon) override {
        told.push_back({title, text, icon});
    }
    Answer AskYesNo(const std::string& title, const std::string& text) override {
        told.push_back({title, text});
        if (whileAsking) whileAsking();
        return Next(answers);
    }
    Answer AskYesNoCancel(const std::string& title, const std::string& text) override {
        return AskYesNo(title, text);
    }
    std::string AskText(const std::string& title, const std::string& prompt) override {
        told.push_back({title, prompt});
        return Next(texts);
    }

  private:
    template <typename T>
    static T Next(std::vector<T>& prepared) {
        T next = prepared.front();
        if (prepared.size() > 1) prepared.erase(prepared.begin());
        return next;
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
    return ParseNatalData(EntryOf(record), system, 1);
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
