// The command that sets settings by their names.
#pragma once

#include "wqspcfg/tools/ServiceAccess.h"

#include <string>
#include <vector>

namespace wqspcfg::tools {

struct ChangeOptions
{
    std::vector<std::string> values; // "NAME=VALUE"
    std::vector<std::string> unset;  // names of settings whose stored values are deleted
    bool dryRun = false;
    bool json = false;
};

// Returns the exit status: 1 where there is no such service, setting or value to delete, 2 where a setting cannot be
// set like this. Nothing is written then.
int Change(const StoreChoice& choice, const ServiceChoice& service, const ChangeOptions& options,
           const Console& console);

} // namespace wqspcfg::tools
