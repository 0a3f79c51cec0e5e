#include "app/settings_file.h"

#include <algorithm>
#include <variant>

#include "birthdata/cities_file.h"
#include "birthdata/names_file.h"
#include "platform/directory_list.h"
#include "platform/file_replacing.h"
#include "text/numbers.h"

namespace tolvanis {
namespace {

constexpr std::string_view kHeading = "[Tolvanis] - Do NOT change the order of these variables.";
constexpr std::string_view kLineEnd = "\r\n";
constexpr double kSmallestFontSize = 7.75;

enum class Rule { Any, Above0, FontSize };

using Member = std::variant<double DataViewSettings::*, std::int16_t DataViewSettings::*, double Settings::*,
                            std::int16_t Settings::*, std::string Settings::*>;

struct Key {
    std::string_view name;  // compared with the first characters of a line
    Member member;
    Rule rule = Rule::Any;  // which numbers are taken; of texts all but the empty one
};

// In the order of the file's lines.
constexpr Key kKeys[] = {
    {"FontSize", &DataViewSettings::FontSize, Rule::FontSize},
    {"FontBold", &DataViewSettings::FontBold},
    {"FontItalic", &DataViewSettings::FontItalic},
    {"TOLVANISTop", &Settings::TOLVANISTop},
    {"TOLVANISLeft", &Settings::TOLVANISLeft},
    {"TOLVANISHeight", &Settings::TOLVANISHeight, Rule::Above0},
    {"TOLVANISWidth", &Settings::TOLVANISWidth, Rule::Above0},
    {"DataTop", &DataViewSettings::DataTop, Rule::Above0},
    {"DataLeft", &DataViewSettings::DataLeft},
    {"DataHeight", &DataViewSettings::DataHeight, Rule::Above0},
    {"DataWidth", &DataViewSettings::DataWidth, Rule::Above0},
    {"StartScale", &Settings::StartScale},
    {"DataFile", &Settings::DataFile},
    {"GeoDataFile", &Settings::GeoDataFile},
    {"AtlasDir", &Settings::AtlasDir},
    {"TypeChart", &Settings::TypeChart},
    {"InterpsDir=", &Settings::InterpsDir},
};

// The setting that a member stands for.
template <typename T>
auto& SettingOf(auto& settings, T Settings::*member) {
    return settings.*member;
}

template <typename T>
auto& SettingOf(auto& settings, T DataViewSettings::*member) {
    return settings.dataView.*member;
}

bool Allows(Rule rule, double number) {
    if (rule == Rule::Above0) return number > 0.0;
    return rule == Rule::Any || number >= kSmallestFontSize;
}

void Take(std::string_view value, Rule rule, double& setting) {
    if (const double number = LeadingNumber(value); Allows(rule, number)) setting = number;
}

void Take(std::string_view value, Rule rule, std::int16_t& setting) {
    if (const std::int16_t number = RoundToInt16(LeadingNumber(value)); Allows(rule, number))
        setting = number;
}

void Take(std::string_view value, Rule, std::string& setting) {
    if (!value.empty()) setting = value;
}

std::string TextOf(double setting) {
    return ClassicNumberText(setting);
}

std::string TextOf(const std::string& setting) {
    return setting;
}

std::string ClosedWithSeparator(const std::string& directory) {
    return JoinPathText(directory, "");
}

bool IsGone(const Path& path) {
    std::error_code error;
    return std::filesystem::status(FindPath(path), error).type() == std::filesystem::file_type::not_found;
}

// The text in front of the last separator.
std::string_view DirectoryPart(std::string_view path) {
    return path.substr(0, path.size() - FileNamePart(path).size());
}

// Takes a file that is gone from the application directory, where that has one of its name.
bool FollowMove(const Path& applicationDirectory, std::string& path) {
    if (path.empty() || !IsGone(PathFromText(path))) return false;
    std::string_view name = path;
    if (name.ends_with('/') || name.ends_with('\\')) name.remove_suffix(1);
    const Path here = FindFile(applicationDirectory, FileNamePart(name));
    if (FileNamePart(name).empty() || IsGone(here)) return false;
    path = JoinPathText(applicationDirectory.string(), here.filename().string());
    return true;
}

void FollowMove(const Path& applicationDirectory, Settings& settings) {
    const std::string texts = ClosedWithSeparator(settings.InterpsDir);
    for (std::string* file : {&settings.DataFile, &settings.GeoDataFile}) {
        const bool wasWithTexts = DirectoryPart(*file) == texts;
        const std::string away = *file;
        if (!FollowMove(applicationDirectory, *file)) continue;
        if (wasWithTexts) {
            settings.InterpsDir = applicationDirectory.string();
        } else {
            settings.standIns.push_back({away, *file});
        }
    }
    FollowMove(applicationDirectory, settings.AtlasDir);
    FollowMove(applicationDirectory, settings.InterpsDir);
}

}  // namespace

Settings DefaultSettings(const Path& applicationDirectory) {
    const std::string directory = applicationDirectory.string();
    Settings settings;
    settings.DataFile = JoinPathText(directory, kDefaultNamesFile);
    settings.GeoDataFile = JoinPathText(directory, kDefaultCitiesFile);
    settings.InterpsDir = ClosedWithSeparator(directory);
    return settings;
}

void ApplySettingsLine(std::string_view line, Settings& settings) {
    const auto key = std::ranges::find_if(kKeys, [&](const Key& one) { return line.starts_with(one.name); });
    if (key == std::end(kKeys)) return;
    const std::size_t equals = line.find('=');
    const std::string_view value = equals == std::string_view::npos ? line : line.substr(equals + 1);
    std::visit([&](auto member) { Take(value, key->rule, SettingOf(settings, member)); }, key->member);
}

Result<Settings> ReadSettings(const Path& applicationDirectory) {
    Settings settings = DefaultSettings(applicationDirectory);
    const Path file = FindFile(applicationDirectory, kSettingsFileName);
    if (!IsGone(file)) {
        const Result<std::vector<std::string>> lines = ReadLines(file);
        if (!lines) return lines.fault();
        for (const std::string& line : *lines) ApplySettingsLine(line, settings);
    }
    FollowMove(applicationDirectory, settings);
    settings.InterpsDir = ClosedWithSeparator(settings.InterpsDir);
    return settings;
}

std::string SettingsText(const Settings& settings) {
    std::string text;
    const auto line = [&](std::string_view key, std::string_view value) {
        text.append(key).append(key.ends_with('=') ? "" : "=").append(value).append(kLineEnd);
    };
    text.append(kHeading).append(kLineEnd);
    for (const Key& key : kKeys) {
        std::string value =
            std::visit([&](auto member) { return TextOf(SettingOf(settings, member)); }, key.member);
        for (const Settings::StandIn& standIn : settings.standIns) {
            if (value == standIn.used) value = standIn.away;
        }
        if (!value.empty()) line(key.name, value);
    }
    for (const char* unused : {"wh_var1", "wh_var2", "wh_var3", "wh_var4", "wh_var5", "wh_var6"}) {
        line(unused, "0");
    }
    return text;
}

Result<void> WriteSettings(const Path& applicationDirectory, const Settings& settings) {
    return ReplaceFile(FindFile(applicationDirectory, kSettingsFileName), SettingsText(settings));
}

}  // namespace tolvanis
