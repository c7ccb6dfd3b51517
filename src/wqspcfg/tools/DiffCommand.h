// The command that compares two terminals.
#pragma once

#include "wqspcfg/tools/ServiceAccess.h"

#include <string>
#include <vector>

namespace wqspcfg::tools {

struct DiffOptions
{
    std::string left; // addresses of stores
    std::string right;
    std::vector<std::string> services; // empty: all
    bool raw = false;                  // the stored values in place of those in effect
    bool json = false;
};

// Returns the exit status: 1 where they differ. `choice` tells how both stores are read.
int Diff(const StoreChoice& choice, const DiffOptions& options, const Console& console);

} // namespace wqspcfg::tools
