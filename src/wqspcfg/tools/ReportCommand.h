// The command that writes a terminal's configuration as a page to look at.
#pragma once

#include "wqspcfg/tools/ServiceAccess.h"

#include <optional>
#include <string>

namespace wqspcfg::tools {

struct ReportCommandOptions
{
    std::string file;                   // empty: standard output
    std::optional<std::string> against; // the address of another store
};

// Returns the exit status: 1 where the page tells of errors or differences.
int Report(const StoreChoice& choice, const ReportCommandOptions& options, const Console& console);

} // namespace wqspcfg::tools
