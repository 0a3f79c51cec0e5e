// The reading of the atlas file.

#include <array>
#include <charconv>
#include <span>

#include "birthdata/atlas.h"
#include "text/fields.h"
#include "text/search_key.h"

namespace tolvanis {
namespace {

std::vector<std::string> KeysOfNames(std::span<const std::string> names) {
    std::vector<std::string> keys;
    for (const std::string& name : names) {
        for (const std::string& one : SplitAt(name, ';')) {
            if (!one.empty()) keys.push_back(SearchKey(one));
        }
    }
    return keys;
}

}  // namespace

// Reads the file into an atlas; the names stay where they stand in its text.
class AtlasReader {
  public:
    explicit AtlasReader(std::string text) {
        atlas_.text_ = std::move(text);
        atlas_.rows_.reserve(atlas_.text_.size() / 40);
        atlas_.keys_.reserve(atlas_.text_.size());
        atlas_.keyStart_.reserve(atlas_.text_.size() / 16);
    }

    // What cannot be read, as ":12: ..." with the number of a line where there is one, or nothing.
    std::string Read() {
        std::string_view rest = atlas_.text_;
        bool ended = false;
        for (int number = 1; !rest.empty(); ++number) {
            const std::size_t end = rest.find('\n');
            std::string_view line = rest.substr(0, end);
            rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
            if (line.ends_with('\r')) line.remove_suffix(1);
            if (!Take(line)) return ":" + std::to_string(number) + ": this line of the atlas cannot be read";
            if (line == kEndLine) ended = true;
        }
        if (!ended) return ": the file ends too early";
        atlas_.keys_ += '\n';
        atlas_.SortIntoCells();
        return {};
    }

    Atlas Finish() { return std::move(atlas_); }

  private:
    bool Take(std::string_view line) {
        if (line.empty() || line.starts_with('#')) return true;
        if (line.starts_with("Z ")) {
            atlas_.zones_.emplace_back(line.substr(2));
            return true;
        }
        const bool isHeading = line.size() > 1 && line[1] == ' ' && line.find('\t') != std::string_view::npos;
        if (isHeading && line[0] == 'C' && line.find('\t') == 4)
            return TakeCountry(SplitAt(line.substr(2), '\t'));
        if (line == "R") return TakeRegion({std::string()});
        if (line.starts_with("R ")) return TakeRegion(SplitAt(line.substr(2), '\t'));
        return TakePlace(line);
    }

    bool TakeCountry(const std::vector<std::string>& fields) {
        atlas_.countries_.push_back({fields[0], fields[1], KeysOfNames(fields)});
        return true;
    }

    bool TakeRegion(const std::vector<std::string>& fields) {
        if (atlas_.countries_.empty()) return false;
        atlas_.regions_.push_back({fields[0], fields.size() > 1 ? fields[1] : std::string(),
                                   KeysOfNames(fields), atlas_.countries_.size() - 1});
        return true;
    }

    bool TakePlace(std::string_view line) {
        std::array<std::string_view, 6> fields;
        for (std::size_t i = 0; i < fields.size(); ++i) {
            const std::size_t end = i + 1 < fields.size() ? line.find('\t') : std::string_view::npos;
            fields[i] = line.substr(0, end);
            line.remove_prefix(end == std::string_view::npos ? line.size() : end + 1);
        }
        Atlas::Row row;
        const bool numbers =
            Number(fields[1], row.north) && Number(fields[2], row.east) && Number(fields[3], row.population);
        if (!numbers || atlas_.regions_.empty() || fields[0].empty()) return false;
        if (!fields[4].empty() && !Number(fields[4], zone_)) return false;
        if (zone_ < 0 || static_cast<std::size_t>(zone_) >= atlas_.zones_.size()) return false;
        row.name = static_cast<std::uint32_t>(fields[0].data() - atlas_.text_.data());
        row.nameLength = static_cast<std::uint16_t>(fields[0].size());
        row.zone = static_cast<std::uint16_t>(zone_);
        row.region = static_cast<std::uint16_t>(atlas_.regions_.size() - 1);
        row.firstKey = static_cast<std::uint32_t>(atlas_.keyStart_.size());
        atlas_.rows_.push_back(row);
        TakeNames(fields[0], fields[5]);
        return true;
    }

    void TakeNames(std::string_view name, std::string_view others) {
        AppendKey(name);
        while (!others.empty()) {
            const std::size_t end = std::min(others.find(';'), others.size());
            AppendKey(others.substr(0, end));
            others.remove_prefix(std::min(end + 1, others.size()));
        }
    }

    void AppendKey(std::string_view name) {
        atlas_.keyStart_.push_back(static_cast<std::uint32_t>(atlas_.keys_.size()));
        atlas_.keys_ += '\n';
        atlas_.keys_ += SearchKey(name);
    }

    template <typename Integer>
    static bool Number(std::string_view text, Integer& value) {
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        return error == std::errc() && end == text.data() + text.size();
    }

    Atlas atlas_;
    int zone_ = -1;
};

Result<Atlas> Atlas::Read(const Path& file) {
    Result<std::string> text = ReadBytes(file);
    if (!text) return text.fault();
    AtlasReader reader(std::move(*text));
    if (const std::string fault = reader.Read(); !fault.empty()) return Fault{file.string() + fault};
    return reader.Finish();
}

}  // namespace tolvanis
