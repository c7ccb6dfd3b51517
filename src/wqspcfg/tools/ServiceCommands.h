// The commands that work with services and their classes. Each returns its exit status. They set the process's current
// store.
#pragma once

#include "wqspcfg/tools/Preview.h"
#include "wqspcfg/tools/ServiceAccess.h"

namespace wqspcfg::tools {

// One line for each service, tab-separated: name, "logical" or "physical", class value, device key name, model class,
// and the reason for the model class.
int ListServices(const StoreChoice& choice, bool json, const Console& console);

struct LoadOptions
{
    bool writeBack = false; // else what the class writes while it loads stays in memory
    bool json = false;
};
int LoadService(const StoreChoice& choice, const ServiceChoice& service, const LoadOptions& options,
                const Console& console);
// With `preview`, prints what would change and changes nothing.
int SaveService(const StoreChoice& choice, const ServiceChoice& service, const std::optional<PreviewOptions>& preview,
                const Console& console);
// One line for each class, tab-separated: name, base and device class, "-" where there is none.
int ListModels(bool json, const Console& console);

} // namespace wqspcfg::tools
