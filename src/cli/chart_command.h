#pragma once
// The work of tolvanis-chart.

#include <iosfwd>

#include "app/exit_status.h"
#include "cli/command_line.h"
#include "platform/clock.h"
#include "platform/file_replacing.h"
#include "platform/files.h"

namespace tolvanis {

// Computes and prints what the request asks for, record by record, holding one at a time. Every refused
// record gives a line on `errors` that names file, line and fault.
ExitStatus RunChartCommand(const ChartRequest& request, const Sink& output, std::ostream& errors,
                           const HostTime& time);

// The same into a file, which is replaced as a whole; it stays as it is when something was refused and no
// chart computed.
ExitStatus RunChartCommandIntoFile(const ChartRequest& request, const Path& file, std::ostream& errors,
                                   const HostTime& time);

}  // namespace tolvanis
