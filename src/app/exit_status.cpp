#include "app/exit_status.h"

#include <iostream>

#include "platform/terminal.h"

namespace tolvanis {

ExitStatus WithOutputWritten(ExitStatus status, std::string_view program) {
    if (FlushStandardOutput()) return status;
    TellOn(std::cerr, std::string(program) + ": cannot write to standard output");
    return kSomethingRefused;
}

ExitStatus PrintAbout(std::string_view program, std::string_view text) {
    WriteToStandardOutput(text);
    return WithOutputWritten(kAllComputed, program);
}

}  // namespace tolvanis
