// One value by its full path on stores of 1,000 to 1,000,000 values, beside mdb_get of as many values of the same size
// under keys of the same length.
#include "RawLmdb.h"
#include "ScratchDir.h"

#include "core/RegKeyEx.h"
#include "platform/store/Session.h"

#include <benchmark/benchmark.h>

#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

// Twenty values to a key, as device keys have them.
constexpr unsigned kValuesPerKey = 20;

std::wstring Subkey(unsigned key)
{
    return L"WQSpDevice" + std::to_wstring(key) + L"\\Control";
}

std::wstring Name(unsigned value)
{
    return L"ResetOfUncommunicate" + std::to_wstring(value);
}

// Positions in random order, the same for both.
std::vector<unsigned> Positions(std::int64_t values)
{
    std::mt19937 random(42);
    std::vector<unsigned> positions(100000);
    for (auto& position : positions) {
        position = static_cast<unsigned>(random() % static_cast<std::uint64_t>(values));
    }
    return positions;
}

std::shared_ptr<wqspcfg::Store> FilledStore(std::int64_t values)
{
    bench::Scratch(); // outlives the stores
    static std::map<std::int64_t, std::shared_ptr<wqspcfg::Store>> stores;
    auto& store = stores[values];
    if (!store) {
        wqspcfg::Error error;
        store = wqspcfg::OpenStore("lmdb:" + (bench::Scratch() / ("store" + std::to_string(values))), {.create = true},
                                   error);
        if (!store) {
            std::fprintf(stderr, "%s\n", error.message.c_str());
            std::exit(1);
        }
        wqspcfg::SetCurrentStore(store);
        const wqspcfg::WriteScope scope;
        for (unsigned i = 0; i < values; ++i) {
            CRegKeyEx::SetValue(i, CString(Name(i % kValuesPerKey)), L"%s%s", L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\",
                                Subkey(i / kValuesPerKey));
        }
    }
    wqspcfg::SetCurrentStore(store);
    return store;
}

void OneValueByPath(benchmark::State& state)
{
    const auto values = state.range(0);
    FilledStore(values);
    const auto positions = Positions(values);
    std::vector<std::wstring> subkeys;
    std::vector<CString> names;
    for (const auto position : positions) {
        subkeys.push_back(Subkey(position / kValuesPerKey));
        names.emplace_back(Name(position % kValuesPerKey));
    }
    const wqspcfg::ReadScope scope;
    std::size_t i = 0;
    for (auto _ : state) {
        DWORD value = 0;
        if (!CRegKeyEx::QueryValue(value, names[i], L"%s%s", L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\", subkeys[i])) {
            state.SkipWithError("a value is missing");
        }
        benchmark::DoNotOptimize(value);
        i = (i + 1) % positions.size();
    }
}
BENCHMARK(OneValueByPath)->RangeMultiplier(10)->Range(1000, 1000000);

void RawGet(benchmark::State& state)
{
    const auto values = state.range(0);
    bench::Scratch();
    static std::map<std::int64_t, std::unique_ptr<bench::RawLmdb>> stores;
    const auto key = [](unsigned position) {
        return "mSOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSPDEVICE" + std::to_string(position / kValuesPerKey) +
               "\\CONTROL" + std::string("\0v", 2) + "RESETOFUNCOMMUNICATE" + std::to_string(position % kValuesPerKey);
    };
    auto& store = stores[values];
    if (!store) {
        store = std::make_unique<bench::RawLmdb>(bench::Scratch() / ("raw" + std::to_string(values)));
        auto* txn = store->Begin(0);
        for (unsigned i = 0; i < values; ++i) {
            char data[64] = {};
            store->Put(txn, key(i), data, sizeof data);
        }
        bench::Check(mdb_txn_commit(txn), "mdb_txn_commit");
    }
    std::vector<std::string> keys;
    for (const auto position : Positions(values)) {
        keys.push_back(key(position));
    }
    auto* txn = store->Begin(MDB_RDONLY);
    std::size_t i = 0;
    for (auto _ : state) {
        auto k = bench::RawLmdb::Val(keys[i].data(), keys[i].size());
        MDB_val v;
        bench::Check(mdb_get(txn, store->Dbi(), &k, &v), "mdb_get");
        benchmark::DoNotOptimize(v);
        i = (i + 1) % keys.size();
    }
    mdb_txn_abort(txn);
}
BENCHMARK(RawGet)->RangeMultiplier(10)->Range(1000, 1000000);

} // namespace
