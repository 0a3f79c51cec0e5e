#include "app/settings_file.h"

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

void TakeAbove0(double value, double& setting) {
    if (value > 0.0) setting = value;
}

void TakeAbove0(double value, std::int16_t& setting) {
    if (const std::int16_t rounded = RoundToInt16(value); rounded > 0) setting = rounded;
}

void TakeText(std::string_view value, std::string& setting) {
    if (!value.empty()) setting = value;
}

using Take = void (*)(std::string_view text, double number, Settings& settings);

struct Key {
    std::string_view name;  // compared with the first characters of a line
    Take take;
};

// In the order of comparison.
constexpr Key kKeys[] = {
    {"FontSize",
     [](auto, double n, Settings& s) {
         if (n >= kSmallestFontSize) s.dataView.FontSize = n;
     }},
    {"FontBold", [](auto, double n, Settings& s) { s.dataView.FontBold = n; }},
    {"FontItalic", [](auto, double n, Settings& s) { s.dataView.FontItalic = n; }},
    {"TOLVANISTop", [](auto, double n, Settings& s) { s.TOLVANISTop = n; }},
    {"TOLVANISLeft", [](auto, double n, Settings& s) { s.TOLVANISLeft = n; }},
    {"TOLVANISHeight", [](auto, double n, Settings& s) { TakeAbove0(n, s.TOLVANISHeight); }},
    {"TOLVANISWidth", [](auto, double n, Settings& s) { TakeAbove0(n, s.TOLVANISWidth); }},
    {"DataTop", [](auto, double n, Settings& s) { TakeAbove0(n, s.dataView.DataTop); }},
    {"DataLeft", [](auto, double n, Settings& s) { s.dataView.DataLeft = RoundToInt16(n); }},
    {"DataHeight", [](auto, double n, Settings& s) { TakeAbove0(n, s.dataView.DataHeight); }},
    {"DataWidth", [](auto, double n, Settings& s) { TakeAbove0(n, s.dataView.DataWidth); }},
    {"DataFile", [](std::string_view t, double, Settings& s) { TakeText(t, s.DataFile); }},
    {"GeoDataFile", [](std::string_view t, double, Settings& s) { TakeText(t, s.GeoDataFile); }},
    {"AtlasDir", [](std::string_view t, double, Settings& s) { TakeText(t, s.AtlasDir); }},
    {"StartScale", [](auto, double n, Settings& s) { s.StartScale = RoundToInt16(n); }},
    {"TypeChart", [](auto, double n, Settings& s) { s.TypeChart = RoundToInt16(n); }},
    {"InterpsDir=", [](std::string_view t, double, Settings& s) { TakeText(t, s.InterpsDir); }},
};

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
        const bool moved = FollowMove(applicationDirectory, *file);
        if (moved && wasWithTexts) settings.InterpsDir = applicationDirectory.string();
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
    const std::size_t equals = line.find('=');
    const std::string_view value = equals == std::string_view::npos ? line : line.substr(equals + 1);
    for (const Key& key : kKeys) {
        if (line.starts_with(key.name)) return key.take(value, LeadingNumber(value), settings);
    }
}

Settings ReadSettings(const Path& applicationDirectory) {
    Settings settings = DefaultSettings(applicationDirectory);
    LineReader reader(FindFile(applicationDirectory, kSettingsFileName));
    for (std::string line; reader.Next(line);) ApplySettingsLine(line, settings);
    FollowMove(applicationDirectory, settings);
    settings.InterpsDir = ClosedWithSeparator(settings.InterpsDir);
    return settings;
}

std::string SettingsText(const Settings& settings) {
    std::string text;
    const auto line = [&](std::string_view key, const std::string& value) {
        text.append(key).append("=").append(value).append(kLineEnd);
    };
    const auto number = [&](std::string_view key, double value) { line(key, ClassicNumberText(value)); };
    const DataViewSettings& view = settings.dataView;

    text.append(kHeading).append(kLineEnd);
    number("FontSize", view.FontSize);
    number("FontBold", view.FontBold);
    number("FontItalic", view.FontItalic);
    number("TOLVANISTop", settings.TOLVANISTop);
    number("TOLVANISLeft", settings.TOLVANISLeft);
    number("TOLVANISHeight", settings.TOLVANISHeight);
    number("TOLVANISWidth", settings.TOLVANISWidth);
    number("DataTop", view.DataTop);
    number("DataLeft", view.DataLeft);
    number("DataHeight", view.DataHeight);
    number("DataWidth", view.DataWidth);
    number("StartScale", settings.StartScale);
    line("DataFile", settings.DataFile);
    line("GeoDataFile", settings.GeoDataFile);
    if (!settings.AtlasDir.empty()) line("AtlasDir", settings.AtlasDir);
    number("TypeChart", settings.TypeChart);
    line("InterpsDir", settings.InterpsDir);
    for (const char* unused : {"wh_var1", "wh_var2", "wh_var3", "wh_var4", "wh_var5", "wh_var6"}) {
        line(unused, "0");
    }
    return text;
}

Result<void> WriteSettings(const Path& applicationDirectory, const Settings& settings) {
    return ReplaceFile(FindFile(applicationDirectory, kSettingsFileName), SettingsText(settings));
}

}  // namespace tolvanis
