#include "app/options_file.h"

namespace tolvanis {

Result<void> ReadOptions(const Path& applicationDirectory, Options& options) {
    const Result<int> read =
        ReadNumberLines(FindFile(applicationDirectory, kOptionsFileName), options.table());
    if (!read) return Fault{read.message()};
    return {};
}

}  // namespace tolvanis
