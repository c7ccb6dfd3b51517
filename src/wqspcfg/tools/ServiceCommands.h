// The commands that work with services and their classes. Each returns its exit status. They set the process's current
// store.
#pragma once

#include "wqspcfg/tools/Console.h"

#include <string>

namespace wqspcfg::tools {

struct ServiceChoice
{
    std::string name;
    bool physical = false;
    std::string model; // a class's name; empty: what the service tells
};

// One line for each service, tab-separated: name, "logical" or "physical", class value, device key name, model class,
// and what told the model class.
int ListServices(const StoreChoice& choice, const Console& console);
int LoadService(const StoreChoice& choice, const ServiceChoice& service, const Console& console);
int SaveService(const StoreChoice& choice, const ServiceChoice& service, const Console& console);
// One line for each class, tab-separated: name, base and device class, "-" where there is none.
int ListModels(const Console& console);

} // namespace wqspcfg::tools
