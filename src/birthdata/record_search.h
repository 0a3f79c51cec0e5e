#pragma once
// Search in a list of texts by what the user types, without regard to letter case, accents and punctuation.

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
    // Prepares the search over `count` texts.
    RecordSearch(std::size_t count, const std::function<std::string(std::size_t)>& textAt);

    std::size_t size() const { return keys_.size(); }

    // The first text at or after `from`, going on at the start of the list, that begins with `typed`.
    std::optional<std::size_t> FindBeginning(std::string_view typed, std::size_t from) const;

    // All texts that contain `typed`, in list order within three groups: those that begin with it, those in
    // which a later word does, the others. Nothing when `typed` holds no letter or digit.
    std::vector<std::size_t> FindAll(std::string_view typed) const;

  private:
    TextList keys_;
};

}  // namespace tolvanis
