#pragma once
// What a program finds at its start: streams, limits and a screen.

#include <iosfwd>
#include <string_view>

namespace tolvanis {

// Puts something in the place of those of the three standard streams that are closed, so that no file that is
// opened later becomes one of them. Reading from and writing to such a stream fails, as it would have.
void OccupyStandardStreams();

// Lets a write beyond the limit of a file's size fail as one to a full disk does, instead of ending the
// program.
void OutliveFileSizeLimits();

// Whether windows can be opened at all. Qt itself would abort without a display.
bool HasDisplay();

// Writes to standard output; false when it does not take everything. FlushStandardOutput tells the same of
// what is still on its way.
bool WriteToStandardOutput(std::string_view text);
bool FlushStandardOutput();

// Writes what a program has to tell about files and their content: every line with its control characters
// blanked, so that none of them reaches a terminal.
void TellOn(std::ostream& errors, std::string_view text);

}  // namespace tolvanis
