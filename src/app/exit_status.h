#pragma once
// What the programs tell their caller.

#include <functional>
#include <string_view>

namespace tolvanis {

enum ExitStatus : int { kAllComputed = 0, kSomethingRefused = 1, kWrongUsage = 2 };

// The status, or that of a failure, told in the program's name, when standard output has not taken
// everything.
ExitStatus WithOutputWritten(ExitStatus status, std::string_view program);

// The status of the work, or that of a failure, told in the program's name, when the memory does not suffice.
ExitStatus WithinMemory(std::string_view program, const std::function<ExitStatus()>& work);

// Prints what a program was asked to tell of itself.
ExitStatus PrintAbout(std::string_view program, std::string_view text);

}  // namespace tolvanis
