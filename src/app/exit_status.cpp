#include "app/exit_status.h"

#include <iostream>
#include <new>

#include "platform/terminal.h"

namespace tolvanis {

ExitStatus WithOutputWritten(ExitStatus status, std::string_view program) {
    if (FlushStandardOutput()) return status;
    TellOn(std::cerr, std::string(program) + ": cannot write to standard output");
    return kSomethingRefused;
}

ExitStatus WithinMemory(std::string_view program, const std::function<ExitStatus()>& work) {
    try {
        return work();
    } catch (const std::bad_alloc&) {
        TellOn(std::cerr, std::string(program) + ": there is not enough memory");
        return kSomethingRefused;
    }
}

ExitStatus PrintAbout(std::string_view program, std::string_view text) {
    WriteToStandardOutput(text);
    return WithOutputWritten(kAllComputed, program);
}

}  // namespace tolvanis
