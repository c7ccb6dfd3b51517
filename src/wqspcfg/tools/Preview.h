// What a command would change in a store, without changing it.
#pragma once

#include "wqspcfg/platform/store/regfile/RegFile.h"
#include "wqspcfg/tools/Console.h"

#include <functional>

namespace wqspcfg::tools {

// Tells all its changes, in their order, to the visitor. It is called several times and says the same each time.
using Changes = std::function<bool(RegFileVisitor& visitor, Error& error)>;

// Prints a line for each key and value that `changes` would add ("+"), change ("~") or delete ("-"), and their numbers
// on standard error. Keys and passwords are masked without `showSecrets`. What the store could not take is an error, as
// it is without a preview. Returns the exit status.
int PreviewChanges(Store& store, const Changes& changes, bool showSecrets, const Console& console);

// The same for putting the content of `after` in place of that of `before`, which may be null for an empty store.
int PreviewReplacement(Store* before, Store& after, bool showSecrets, const Console& console);

} // namespace wqspcfg::tools
