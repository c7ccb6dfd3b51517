// The commands that look after the embedded store.
#pragma once

#include "wqspcfg/tools/Console.h"

namespace wqspcfg::tools {

int Compact(const StoreChoice& choice, const Console& console);

struct StatusOptions
{
    bool verify = false; // exit status kNegative for a store that is damaged
    bool json = false;
};
int ShowStatus(const StoreChoice& choice, const StatusOptions& options, const Console& console);

} // namespace wqspcfg::tools
