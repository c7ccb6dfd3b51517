#pragma once

#include "ScratchDir.h"
#include "Work.h"

#include <memory>
#include <string>

namespace bench {

// Each registers its benchmarks; stores are made when a benchmark is first run.
void RegisterLoad();      // a whole Load, beside the same values in other stores
void RegisterServices();  // Loads of many services in one store
void RegisterSave();      // a whole Save, beside raw commits of the same values
void RegisterValue();     // one value by its full path
void RegisterDiagnosis(); // the examination of a service, checks of exports
void RegisterFootprint(); // the memory of one loaded object

// A terminal's store.
inline constexpr std::size_t kTerminalValues = 10000;

inline std::shared_ptr<wqspcfg::Store> CreateStore(const std::string& name)
{
    wqspcfg::Error error;
    auto store = wqspcfg::OpenStore("lmdb:" + (Scratch() / name), {.create = true}, error);
    if (!store) {
        Die(error.message);
    }
    wqspcfg::SetCurrentStore(store);
    return store;
}

// A store of `values` values (0: of the device alone) with every value of one device of the class.
inline std::shared_ptr<wqspcfg::Store> CreateDeviceStore(const std::string& name, const wqspcfg::ClassEntry& entry,
                                                         std::size_t values)
{
    auto store = CreateStore(name);
    StoreDevice(entry);
    StoreOthers(values);
    return store;
}

} // namespace bench
