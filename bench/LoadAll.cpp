// Opens a store, loads every service in it with its log lines, and exits: what a check of the whole terminal is held
// to.
#include "wqspcfg/catalogue/ModelSelection.h"
#include "wqspcfg/core/Log.h"
#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/platform/store/Session.h"

#include <cstdio>

int main(int argc, char** argv)
{
    wqspcfg::Error error;
    auto store = argc == 2 ? wqspcfg::OpenStore(argv[1], {.readOnly = true}, error) : nullptr;
    if (!store) {
        std::fprintf(stderr, "%s\n", error.message.c_str());
        return 1;
    }
    wqspcfg::SetCurrentStore(std::move(store));
    std::size_t lines = 0;
    for (const bool physical : {false, true}) {
        CStringArray names;
        CRegKeyEx::EnumSubKeyName(names, L"%s", physical ? wqspcfg::kServiceRoot : wqspcfg::kLogicalRoot);
        for (const auto& name : names) {
            const auto service = wqspcfg::IdentifyService(name, physical);
            wqspcfg::MemoryLog log;
            wqspcfg::Create(*wqspcfg::SelectModel(service).entry, name, physical)->Load(&log);
            lines += log.Entries().size();
        }
    }
    std::printf("%zu\n", lines);
    return wqspcfg::LastStoreError() ? 1 : 0;
}
