// What a command would change in a store, without changing it.
#pragma once

#include "wqspcfg/diagnosis/Places.h"
#include "wqspcfg/platform/store/regfile/RegFile.h"
#include "wqspcfg/tools/Console.h"

#include <functional>

namespace wqspcfg::tools {

struct PreviewOptions
{
    bool showSecrets = false; // keys and passwords are masked without it
    bool json = false;
    diagnosis::StoreSource source; // where what is changed or deleted stands
};

// Tells all its changes, in their order, to the visitor. It is called several times and says the same each time.
using Changes = std::function<bool(RegFileVisitor& visitor, Error& error)>;

// Prints each key and value that `changes` would add ("+"), change ("~") or delete ("-"), and their numbers on standard
// error. What the store could not take is an error, as it is without a preview. Returns the exit status.
int PreviewChanges(Store& store, const Changes& changes, const PreviewOptions& options, const Console& console);

// The same for putting the content of `after` in place of that of `before`, which may be null for an empty store.
int PreviewReplacement(Store* before, Store& after, const PreviewOptions& options, const Console& console);

} // namespace wqspcfg::tools
