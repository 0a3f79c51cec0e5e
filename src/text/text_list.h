#pragma once
// Many short texts in one piece of memory.

#include <string>
#include <string_view>
#include <vector>

namespace tolvanis {

class TextList {
  public:
    void Reserve(std::size_t count) { ends_.reserve(count); }
    void Append(std::string_view text) {
        texts_ += text;
        ends_.push_back(texts_.size());
    }

    std::size_t size() const { return ends_.size(); }
    std::string_view operator[](std::size_t index) const {
        const std::size_t start = index == 0 ? 0 : ends_[index - 1];
        return std::string_view(texts_).substr(start, ends_[index] - start);
    }

  private:
    std::string texts_;
    std::vector<std::size_t> ends_;  // where each text ends in texts_
};

}  // namespace tolvanis
