#pragma once
// Search in a list of texts by what the user types, without regard to letter case, accents and punctuation.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/text_list.h"

namespace tolvanis {

class RecordSearch {
  public:
    RecordSearch() = default;

    // What else a record is found by, and how large it is beside others that fit as well.
    struct More {
        std::vector<std::string> names;  // as search keys
        int weight = 0;
    };
    using MoreAt = std::function<More(std::size_t)>;

    // Prepares the search over `count` texts.
    RecordSearch(std::size_t count, const std::function<std::string(std::size_t)>& textAt,
                 const MoreAt& moreAt = {});

    std::size_t size() const { return keys_.size(); }

    // The first text at or after `from`, going on at the start of the list, that begins with `typed`.
    std::optional<std::size_t> FindBeginning(std::string_view typed, std::size_t from) const;

    // All texts that contain `typed` or another spelling of it, the heaviest first, else in list order,
    // within four groups: those that are it up to their comma, those that begin with it, those in which a
    // later word does, the others. Another name puts its record into the first two. Nothing when `typed`
    // holds no letter or digit.
    std::vector<std::size_t> FindAll(std::string_view typed) const;

  private:
    int GroupOf(std::size_t index, const std::string& key) const;

    TextList keys_;
    std::vector<std::uint32_t> firstPart_;  // length of each key up to the text's comma
    TextList otherNames_;                   // of each record, each name between two line feeds
    std::vector<int> weights_;
};

}  // namespace tolvanis
