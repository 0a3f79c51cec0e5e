#pragma once
// The check of a names file against the zone history.

#include <iosfwd>

#include "app/command_data.h"
#include "app/exit_status.h"
#include "cli/command_line.h"
#include "platform/file_replacing.h"

namespace tolvanis {

// Lists every record of the names file whose zone is not the one in force at its place, with the difference
// that it makes to the Ascendant. kSomethingRefused when there are any, or a record cannot be read.
ExitStatus CheckZones(const ChartRequest& request, const CommandData& data, const Sink& output,
                      std::ostream& errors);

}  // namespace tolvanis
