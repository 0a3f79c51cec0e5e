#include "platform/directory_list.h"

#include <algorithm>

#include "text/columns.h"

namespace tolvanis {
namespace {

namespace fs = std::filesystem;

// Both texts in upper case.
bool FitsUpper(std::string_view name, std::string_view pattern) {
    std::size_t n = 0, p = 0;
    std::size_t star = std::string_view::npos, resume = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            resume = n;
        } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == name[n])) {
            ++p, ++n;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            n = ++resume;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

template <typename Wanted>
std::vector<std::string> EntriesOf(const Path& directory, Wanted wanted) {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(FindPath(directory), error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        // A name in another encoding could be shown, but not be written down and found again.
        if (ToUtf8(name) == name && wanted(*entry)) names.push_back(name);
    }
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        const std::string upperA = UpperCase(a), upperB = UpperCase(b);
        return upperA != upperB ? upperA < upperB : a < b;
    });
    return names;
}

}  // namespace

bool FitsPattern(std::string_view name, std::string_view pattern) {
    const std::string upperName = UpperCase(name);
    for (std::string_view rest = pattern; !rest.empty();) {
        const std::size_t end = rest.find(';');
        if (FitsUpper(upperName, UpperCase(TrimBlanks(rest.substr(0, end))))) return true;
        rest = end == std::string_view::npos ? std::string_view{} : rest.substr(end + 1);
    }
    return false;
}

std::vector<std::string> FilesIn(const Path& directory, std::string_view pattern) {
    return EntriesOf(directory, [&](const fs::directory_entry& entry) {
        std::error_code error;
        return entry.is_regular_file(error) && FitsPattern(entry.path().filename().string(), pattern);
    });
}

std::vector<std::string> DirectoriesIn(const Path& directory) {
    return EntriesOf(directory, [](const fs::directory_entry& entry) {
        std::error_code error;
        return entry.is_directory(error) && !entry.path().filename().string().starts_with('.');
    });
}

std::string JoinPathText(std::string_view directory, std::string_view name) {
    std::string path(directory);
    // A directory that was written with the other separator goes on with it.
    const bool other = path.find('\\') != std::string::npos && path.find('/') == std::string::npos;
    const char separator = other ? '\\' : static_cast<char>(Path::preferred_separator);
    if (!path.ends_with('/') && !path.ends_with('\\')) path += separator;
    return path.append(name);
}

std::size_t IndexOfPathEnd(const std::vector<std::string>& names, std::string_view path) {
    const std::string_view wanted = FileNamePart(path);
    auto found = std::ranges::find(names, wanted);
    if (found == names.end()) {
        found = std::ranges::find_if(
            names, [&](const std::string& name) { return EqualIgnoringCase(name, wanted); });
    }
    return found == names.end() ? 0 : static_cast<std::size_t>(found - names.begin());
}

}  // namespace tolvanis
