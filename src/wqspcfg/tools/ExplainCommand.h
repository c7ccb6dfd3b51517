// The command that tells what a service runs with, and why.
#pragma once

#include "wqspcfg/tools/ServiceAccess.h"

#include <optional>
#include <string>

namespace wqspcfg::tools {

struct ExplainOptions
{
    std::optional<std::string> setting; // its name, or "Key\Name"; none: all
    bool changed = false;               // only what differs from the default
    bool json = false;
};

// Returns the exit status: 1 where there is no such service or setting.
int Explain(const StoreChoice& choice, const ServiceChoice& service, const ExplainOptions& options,
            const Console& console);

} // namespace wqspcfg::tools
