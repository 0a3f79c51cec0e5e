#pragma once
// Another program, started and waited for.

#include <string>
#include <utility>
#include <vector>

#include "platform/external_program.h"
#include "platform/files.h"

namespace tolvanis {

// Starts a program in its own directory and waits until it has ended, handling the windows' events meanwhile.
// A file that is missing or not executable is not started. When this program ends first, the other one goes
// on by itself, or ends too. The program gets this one's environment with `more` variables set in it.
enum class AtExit { LeaveIt, EndIt };
ProgramRun RunAndWait(const Path& program, AtExit atExit = AtExit::LeaveIt,
                      const std::vector<std::pair<std::string, std::string>>& more = {});

}  // namespace tolvanis
