#include "birthdata/record_search.h"

#include <array>

#include "text/search_key.h"

namespace tolvanis {

RecordSearch::RecordSearch(std::size_t count, const std::function<std::string(std::size_t)>& textAt) {
    keys_.Reserve(count);
    for (std::size_t i = 0; i < count; ++i) keys_.Append(SearchKey(textAt(i)));
}

std::optional<std::size_t> RecordSearch::FindBeginning(std::string_view typed, std::size_t from) const {
    const std::string key = SearchKey(typed);
    if (key.empty()) return std::nullopt;
    for (std::size_t step = 0; step < size(); ++step) {
        const std::size_t index = (from + step) % size();
        if (keys_[index].starts_with(key)) return index;
    }
    return std::nullopt;
}

std::vector<std::size_t> RecordSearch::FindAll(std::string_view typed) const {
    const std::string key = SearchKey(typed);
    if (key.empty()) return {};
    const std::string wordStart = ' ' + key;
    std::array<std::vector<std::size_t>, 3> groups;
    for (std::size_t i = 0; i < size(); ++i) {
        const std::string_view text = keys_[i];
        if (text.find(key) == std::string_view::npos) continue;
        const bool laterWord = text.find(wordStart) != std::string_view::npos;
        groups[text.starts_with(key) ? 0 : laterWord ? 1 : 2].push_back(i);
    }
    std::vector<std::size_t> found = std::move(groups[0]);
    found.insert(found.end(), groups[1].begin(), groups[1].end());
    found.insert(found.end(), groups[2].begin(), groups[2].end());
    return found;
}

}  // namespace tolvanis
