// The command that tells what is wrong with a terminal's configuration.
#pragma once

#include "wqspcfg/tools/ServiceAccess.h"

#include <string>
#include <vector>

namespace wqspcfg::tools {

struct CheckCommandOptions
{
    std::vector<std::string> services; // their names or those of their providers; empty: the whole terminal
    bool physical = false;             // they are names of providers
    bool strict = false;               // warnings count for the exit status
    bool json = false;
};

// Returns the exit status: 1 where there are errors, or there is no such service.
int CheckTerminal(const StoreChoice& choice, const CheckCommandOptions& options, const Console& console);

} // namespace wqspcfg::tools
