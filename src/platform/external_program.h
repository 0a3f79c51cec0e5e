#pragma once
// What becomes of a program that this one starts.

namespace tolvanis {

enum class ProgramRun {
    NotStarted,  // it cannot be started
    Ended,       // it was started and has ended, in whatever way
    Abandoned,   // this program is closing and waits no longer
};

}  // namespace tolvanis
