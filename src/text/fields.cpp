#include "text/fields.h"

#include <algorithm>

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

// Reads the field at the start of `text`; afterwards `text` begins at the comma after it, or is empty.
std::string TakeField(std::string_view& text) {
    std::string field;
    text = TrimLeadingBlanks(text);
    if (TakeQuoted(text, field)) return field;
    const std::size_t comma = std::min(text.find(','), text.size());
    field = TrimTrailingBlanks(text.substr(0, comma));
    text.remove_prefix(comma);
    return field;
}

}  // namespace

std::vector<std::string> SplitFields(std::string_view line) {
    constexpr std::size_t kUsualCount = 8;
    std::vector<std::string> fields;
    fields.reserve(kUsualCount);
    while (true) {
        fields.push_back(TakeField(line));
        if (line.empty()) return fields;
        line.remove_prefix(1);
    }
}

std::string FirstField(std::string_view line) {
    return TakeField(line);
}

std::vector<std::string> SplitAt(std::string_view text, char separator) {
    std::vector<std::string> parts;
    while (true) {
        const std::size_t end = text.find(separator);
        parts.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

std::string QuotedWhereNeeded(const std::string& field) {
    const std::vector<std::string> readBack = SplitFields(field);
    if (readBack.size() == 1 && readBack.front() == field) return field;
    std::string quoted = "\"";
    for (const char c : field) quoted.append(c == '"' ? 2 : 1, c);
    return quoted + "\"";
}

}  // namespace tolvanis
