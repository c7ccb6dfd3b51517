// The commands that work with services and their classes. Each returns its exit status. They set the process's current
// store.
#pragma once

#include "wqspcfg/tools/ServiceAccess.h"

namespace wqspcfg::tools {

// One line for each service, tab-separated: name, "logical" or "physical", class value, device key name, model class,
// and the reason for the model class.
int ListServices(const StoreChoice& choice, const Console& console);
// What the class writes while it loads stays in memory, unless `writeBack` is set.
int LoadService(const StoreChoice& choice, const ServiceChoice& service, bool writeBack, const Console& console);
// With `dryRun`, prints what would change.
int SaveService(const StoreChoice& choice, const ServiceChoice& service, bool dryRun, const Console& console);
// One line for each class, tab-separated: name, base and device class, "-" where there is none.
int ListModels(const Console& console);

} // namespace wqspcfg::tools
