#include "platform/terminal.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ostream>

#include "text/columns.h"

namespace tolvanis {

void OccupyStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(stream, F_GETFD) != -1) continue;
        // The lowest free number is given out, which is this one. Its direction is the wrong one.
        const int opened = ::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        if (opened != stream && opened >= 0) ::close(opened);
    }
}

void OutliveFileSizeLimits() {
    std::signal(SIGXFSZ, SIG_IGN);
}

bool HasDisplay() {
    return std::ranges::any_of(std::array{"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"},
                               [](const char* name) {
                                   const char* value = std::getenv(name);
                                   return value != nullptr && *value != '\0';
                               });
}

bool WriteToStandardOutput(std::string_view text) {
    return std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
}

bool FlushStandardOutput() {
    return std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
}

void TellOn(std::ostream& errors, std::string_view text) {
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        errors << Printable(text.substr(0, end)) << "\n";
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
}

}  // namespace tolvanis
