// The files that the program writes.
#pragma once

#include "wqspcfg/tools/Console.h"

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace wqspcfg::tools {

// Has `write` write the file, and returns its exit status or that of a failure to write, which is told here. A regular
// file is written whole or not at all: it holds its old content until the new one is complete and durable, and nobody
// may read it who could not read the old one and `sources`, the files that the content comes from (empty: none).
// Neither these nor the files of an embedded store are replaced. Anything else, such as a device or a pipe, is written
// to as it is.
int WriteOutputFile(const std::string& file, const std::vector<std::string>& sources,
                    const std::function<int(std::ostream&)>& write, const Console& console);

} // namespace wqspcfg::tools
