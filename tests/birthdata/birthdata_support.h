#pragma once
// A scratch directory and a user who answers, for the tests of files and windows.

#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "platform/messages.h"

namespace tolvanis {

class ScratchDirectory {
  public:
    ScratchDirectory() {
        std::string name = (std::filesystem::temp_directory_path() / "tolvanis.XXXXXX").string();
        path_ = ::mkdtemp(name.data());
    }
    ~ScratchDirectory() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
    ScratchDirectory(const ScratchDirectory&) = delete;
    ScratchDirectory& operator=(const ScratchDirectory&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path File(const std::string& name) const { return path_ / name; }

    std::filesystem::path Write(const std::string& name, const std::string& content) const {
        std::ofstream(File(name), std::ios::binary) << content;
        return File(name);
    }
    std::string Read(const std::string& name) const {
        std::ifstream file(File(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    // The names in the directory, in order.
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

// Records what is told and asked, and answers from a list; without one No, or an empty text.
class RecordedMessages : public Messages {
  public:
    struct Told {
        std::string title, text;
        MessageIcon icon;
    };
    std::vector<Told> told;
    std::vector<Told> asked;
    std::deque<Answer> answers;
    std::deque<std::string> texts;
    std::function<void()> whileAsking;  // what happens while a question is open

    void Tell(const std::string& title, const std::string& text, MessageIcon icon) override {
        told.push_back({title, text, icon});
    }
    Answer AskYesNo(const std::string& title, const std::string& text) override {
        asked.push_back({title, text, MessageIcon::Question});
        if (whileAsking) whileAsking();
        return Next(answers, Answer::No);
    }
    Answer AskYesNoCancel(const std::string& title, const std::string& text) override {
        return AskYesNo(title, text);
    }
    std::string AskText(const std::string& title, const std::string& prompt) override {
        asked.push_back({title, prompt, MessageIcon::None});
        if (whileAsking) whileAsking();
        return Next(texts, std::string());
    }

  private:
    template <typename T>
    static T Next(std::deque<T>& list, T otherwise) {
        if (list.empty()) return otherwise;
        T next = list.front();
        list.pop_front();
        return next;
    }
};

}  // namespace tolvanis
