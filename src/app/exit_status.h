#pragma once
// What the programs tell their caller.

namespace tolvanis {

enum ExitStatus : int { kAllComputed = 0, kSomethingRefused = 1, kWrongUsage = 2 };

}  // namespace tolvanis
