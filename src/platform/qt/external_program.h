#pragma once
// Another program, started and waited for.

#include <string>
#include <utility>
#include <vector>

#include "platform/external_program.h"
#include "platform/files.h"

namespace tolvanis {

// What becomes of the other program when this one ends first.
enum class AtExit { LeaveIt, EndIt };

// Starts a program in its own directory and waits until it has ended, handling the windows' events meanwhile.
// A file that is missing or not executable is not started. The program gets this one's environment with
// `more` variables set in it.
ProgramRun RunAndWait(const Path& program, AtExit atExit = AtExit::LeaveIt,
                      const std::vector<std::pair<std::string, std::string>>& more = {});

}  // namespace tolvanis
