#include "birthdata/record_search.h"

#include <algorithm>
#include <array>

#include "text/search_key.h"

namespace tolvanis {
namespace {

constexpr int kGroups = 4;

}  // namespace

RecordSearch::RecordSearch(std::size_t count, const std::function<std::string(std::size_t)>& textAt,
                           const MoreAt& moreAt) {
    keys_.Reserve(count);
    firstPart_.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::string text = textAt(i);
        keys_.Append(SearchKey(text));
        const std::size_t comma = text.rfind(',');
        firstPart_.push_back(static_cast<std::uint32_t>(
            comma == std::string::npos ? keys_[i].size()
                                       : SearchKey(std::string_view(text).substr(0, comma)).size()));
        if (!moreAt) continue;
        const More more = moreAt(i);
        std::string names = "\n";
        for (const std::string& name : more.names) names += name + '\n';
        otherNames_.Append(names);
        weights_.push_back(more.weight);
    }
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

// The group of a record for one spelling, or kGroups.
int RecordSearch::GroupOf(std::size_t index, const std::string& key) const {
    const std::string_view text = keys_[index];
    if (text.starts_with(key) && firstPart_[index] == key.size()) return 0;
    if (!weights_.empty() && otherNames_[index].find('\n' + key + '\n') != std::string_view::npos) return 0;
    if (text.starts_with(key)) return 1;
    if (!weights_.empty() && otherNames_[index].find('\n' + key) != std::string_view::npos) return 1;
    if (text.find(' ' + key) != std::string_view::npos) return 2;
    return text.find(key) != std::string_view::npos ? 3 : kGroups;
}

std::vector<std::size_t> RecordSearch::FindAll(std::string_view typed) const {
    const std::string key = SearchKey(typed);
    if (key.empty()) return {};
    const std::vector<std::string> spellings = KeySpellings(key);
    std::array<std::vector<std::size_t>, kGroups> groups;
    for (std::size_t i = 0; i < size(); ++i) {
        int group = kGroups;
        for (const std::string& spelling : spellings) group = std::min(group, GroupOf(i, spelling));
        if (group < kGroups) groups[static_cast<std::size_t>(group)].push_back(i);
    }
    std::vector<std::size_t> found;
    for (std::vector<std::size_t>& group : groups) {
        const auto isOwnName = [&](std::size_t i) { return keys_[i].substr(0, firstPart_[i]) == key; };
        const auto heavier = [&](std::size_t a, std::size_t b) {
            return std::pair(weights_[a], isOwnName(a)) > std::pair(weights_[b], isOwnName(b));
        };
        if (!weights_.empty()) std::ranges::stable_sort(group, heavier);
        found.insert(found.end(), group.begin(), group.end());
    }
    return found;
}

}  // namespace tolvanis
