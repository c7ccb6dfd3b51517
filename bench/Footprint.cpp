// The memory of one loaded object of every class; the largest is reported.
#include "Benchmarks.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

namespace bench {

namespace {

std::size_t AllocatedBytes()
{
    const auto info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void LargestObject(benchmark::State& state)
{
    std::string largest;
    std::size_t most = 0;
    std::size_t object = 0;
    std::vector<std::size_t> all;
    for (auto _ : state) {
        for (const auto* entry : wqspcfg::AllClasses()) {
            if (entry->create == nullptr) {
                continue;
            }
            wqspcfg::Error error;
            wqspcfg::SetCurrentStore(wqspcfg::OpenStore("memory:", {}, error));
            StoreDevice(*entry);
            // What all objects of the process share is there before.
            const auto other = wqspcfg::Create(*entry, kPhysicalName, true);
            other->Load(nullptr);
            const auto before = AllocatedBytes();
            const auto config = wqspcfg::Create(*entry, kPhysicalName, true);
            config->Load(nullptr);
            all.push_back(AllocatedBytes() - before);
            if (all.back() > most) {
                most = all.back();
                object = malloc_usable_size(dynamic_cast<void*>(config.get()));
                largest = NameOf(*entry);
            }
        }
    }
    std::sort(all.begin(), all.end());
    state.counters["bytes"] = static_cast<double>(most);
    state.counters["object"] = static_cast<double>(object);
    state.counters["median"] = static_cast<double>(all[all.size() / 2]);
    state.counters["classes"] = static_cast<double>(all.size());
    state.SetLabel(largest);
}

} // namespace

void RegisterFootprint()
{
    benchmark::RegisterBenchmark("Footprint", LargestObject)->Iterations(1)->Unit(benchmark::kMillisecond);
}

} // namespace bench
