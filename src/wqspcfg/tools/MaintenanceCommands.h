// The commands that look after the embedded store.
#pragma once

#include "wqspcfg/tools/Console.h"

namespace wqspcfg::tools {

int Compact(const StoreChoice& choice, const Console& console);
// With `verify`, status kNegative for a store that is damaged.
int ShowStatus(const StoreChoice& choice, bool verify, const Console& console);

} // namespace wqspcfg::tools
