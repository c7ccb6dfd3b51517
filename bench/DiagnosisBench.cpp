// What it costs to know why: the examination of a service beside its Load, and checks of many registry exports.
#include "Benchmarks.h"

#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/diagnosis/Check.h"
#include "wqspcfg/platform/store/regfile/RegFile.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <fstream>
#include <unistd.h>

namespace bench {

namespace {

using namespace wqspcfg;

void Import(const std::string& name)
{
    const auto store = CreateStore(name);
    ImportCounts counts;
    Error error;
    if (!ImportRegFile(*store, BENCH_EXAMPLE, counts, error)) {
        Die(error.message);
    }
}

void Examination(benchmark::State& state, bool examine)
{
    static std::shared_ptr<Store> store;
    Error error;
    if (!store) {
        Import("terminal");
        store = CurrentStore(error);
    }
    SetCurrentStore(store);
    const auto service = IdentifyService(L"CardDispenser", false);
    const auto& entry = *SelectModel(service).entry;
    for (auto _ : state) {
        if (examine) {
            benchmark::DoNotOptimize(diagnosis::Examine(service, entry).settings.size());
        } else {
            MemoryLog log;
            Create(entry, L"CardDispenser", false)->Load(&log);
            benchmark::DoNotOptimize(log.Entries().data());
        }
    }
}

void SaveAll()
{
    CStringArray names;
    CRegKeyEx::EnumSubKeyName(names, L"%s", kLogicalRoot);
    for (const auto& name : names) {
        const auto object = Create(*SelectModel(IdentifyService(name, false)).entry, name, false);
        object->Load(nullptr);
        object->Save();
    }
}

std::size_t CountValues(Transaction& transaction, const std::wstring& path)
{
    KeyId key = 0;
    std::size_t values = 0;
    std::vector<std::wstring> subkeys;
    if (transaction.OpenKey(Hive::LocalMachine, path, key) != Outcome::Found) {
        return 0;
    }
    transaction.EnumValues(key, [&](std::wstring_view, const ValueView&) { return ++values != 0; });
    transaction.EnumKeys(key, [&](std::wstring_view name) {
        subkeys.emplace_back(name);
        return true;
    });
    transaction.CloseKey(key);
    for (const auto& subkey : subkeys) {
        values += CountValues(transaction, path + L'\\' + subkey);
    }
    return values;
}

// The example terminal with every value that its services save, and as many note types as make 2,000 values: a registry
// export.
struct Export
{
    std::string file;
    std::size_t values = 0;
};
Export LargeExport()
{
    Import("large");
    SaveAll();
    Error error;
    const auto store = CurrentStore(error);
    const auto noteTypes = std::wstring(kDeviceRoot) + L"WQC81Driver\\NoteType";
    Export made{Scratch() / "large.reg"};
    for (DWORD i = 1; made.values < 2000; ++i) {
        CRegKeyEx::SetValue(i, L"Count", L"%s", noteTypes);
        const auto noteType = noteTypes + L"\\NoteType" + std::to_wstring(i);
        for (const auto* name : {L"NoteID", L"Value", L"Release", L"Config"}) {
            CRegKeyEx::SetValue(i, name, L"%s", noteType);
        }
        CRegKeyEx::SetValue(L"CNY", L"CurrencyID", L"%s", noteType);
        made.values = CountValues(*store->Begin(Access::Read, error), L"SOFTWARE");
    }
    std::ofstream out(made.file, std::ios::binary);
    if (!ExportRegFile(*store, out, error) || !out.flush()) {
        Die(error.message);
    }
    return made;
}

double ResidentBytes()
{
    std::ifstream file("/proc/self/statm");
    double size = 0;
    double resident = 0;
    file >> size >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE));
}

void CheckExports(benchmark::State& state)
{
    const auto made = LargeExport();
    const auto address = "reg:" + made.file;
    double first = 0;
    int checked = 0;
    for (auto _ : state) {
        Error error;
        auto store = OpenStore(address, {.readOnly = true}, error);
        if (!store) {
            Die(error.message);
        }
        SetCurrentStore(std::move(store));
        diagnosis::Places places({});
        benchmark::DoNotOptimize(diagnosis::Check({}, places).findings.size());
        if (++checked == 100) { // what is described once, and the heap's own slack, are there by then
            first = ResidentBytes();
        }
    }
    state.counters["values"] = static_cast<double>(made.values);
    state.counters["growth"] = ResidentBytes() - first;
}

} // namespace

void RegisterDiagnosis()
{
    for (const bool examine : {false, true}) {
        benchmark::RegisterBenchmark(examine ? "Examine/CardDispenser/WQSpCfg" : "Examine/CardDispenser/limit",
                                     [examine](benchmark::State& state) { Examination(state, examine); })
            ->Unit(benchmark::kMicrosecond);
    }
    benchmark::RegisterBenchmark("Exports/WQSpCfg", CheckExports)->Unit(benchmark::kMillisecond)->Iterations(1000);
}

} // namespace bench
