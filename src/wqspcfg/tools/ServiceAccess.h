// What the commands that work with services have in common.
#pragma once

#include "wqspcfg/catalogue/ModelSelection.h"
#include "wqspcfg/diagnosis/Places.h"
#include "wqspcfg/tools/Console.h"

#include <memory>
#include <string>
#include <vector>

namespace wqspcfg::tools {

struct ServiceChoice
{
    std::string name;
    bool physical = false;
    std::string model; // a class's name; empty: it is detected
};

// The current store for as long as a command runs.
class CurrentStoreScope
{
  public:
    explicit CurrentStoreScope(std::shared_ptr<Store> store);
    ~CurrentStoreScope();
    CurrentStoreScope(const CurrentStoreScope&) = delete;
    CurrentStoreScope& operator=(const CurrentStoreScope&) = delete;
};

// Status 3 when a registry operation has failed, else `status`.
int Checked(int status, const Console& console);

// Opens the store for a command that works with services. One that was filled from a 64-bit Windows, without --view32,
// has no keys where service providers read them, which is an error.
std::shared_ptr<Store> OpenForServices(const StoreChoice& choice, Access access, Error& error);
// The same for reading; what a class writes while it loads is forgotten.
std::shared_ptr<Store> OpenForExamination(const StoreChoice& choice, Error& error);

// Where the values of the store stand in a file, if it is one.
diagnosis::StoreSource SourceOf(const StoreChoice& choice);

// The services of the current store that `name` means, by their own names: that service or, where there is none of that
// name or `physical` is set, those of that service provider. None where there are none.
std::vector<std::wstring> NamesOfServices(const std::wstring& name, bool physical);

// The message about a class that does not exist.
std::string NoClass(const std::string& name);

// The class of the service, or null with `status` set. What it is and why goes to standard error.
const ClassEntry* ChooseClass(const ServiceChoice& choice, const ServiceIdentity& service, const Console& console,
                              int& status);

} // namespace wqspcfg::tools
