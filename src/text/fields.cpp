#include "text/fields.h"

#include "text/columns.h"

namespace tolvanis {
namespace {

// Reads a quoted field at the start of `text`. On success `text` begins at the comma after it, or is empty.
bool TakeQuoted(std::string_view& text, std::string& field) {
    if (!text.starts_with('"')) return false;
    std::string value;
    std::size_t at = 1;
    for (; at < text.size(); ++at) {
        if (text[at] != '"') {
            value += text[at];
        } else if (at + 1 < text.size() && text[at + 1] == '"') {
            value += '"';
            ++at;
        } else {
            break;
        }
    }
    if (at >= text.size()) return false;
    const std::string_view rest = TrimLeadingBlanks(text.substr(at + 1));
    if (!rest.empty() && rest.front() != ',') return false;
    field = std::move(value);
    text = rest;
    return true;
}

}  // namespace

std::vector<std::string> SplitFields(std::string_view line) {
    std::vector<std::string> fields;
    while (true) {
        std::string field;
        std::string_view rest = TrimLeadingBlanks(line);
        if (!TakeQuoted(rest, field)) {
            const std::size_t comma = std::min(rest.find(','), rest.size());
            field = TrimTrailingBlanks(rest.substr(0, comma));
            rest.remove_prefix(comma);
        }
        fields.push_back(std::move(field));
        if (rest.empty()) return fields;
        line = rest.substr(1);
    }
}

}  // namespace tolvanis
