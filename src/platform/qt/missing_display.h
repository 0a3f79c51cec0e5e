#pragma once
// What a program says when its display cannot be reached.

namespace tolvanis {

// From here on a display that cannot be reached ends the program with a message and status 1; Qt by itself
// would abort. Called before the application object is made.
void EndPlainlyWithoutDisplay(const char* program);

}  // namespace tolvanis
