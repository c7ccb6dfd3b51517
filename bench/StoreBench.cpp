// One value by its full path within one transaction, on stores of 1,000 to 1,000,000 values, beside mdb_get of the same
// values under the same names: four bytes each (the limit), and as many as this library's record takes, which also
// holds a check sum, the type and the name as it was written. The places are random, the same for all.
#include "Benchmarks.h"
#include "RawLmdb.h"

#include "wqspcfg/platform/store/Record.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <map>
#include <random>

namespace bench {

namespace {

constexpr std::size_t kValuesPerKey = 20;
constexpr wchar_t kPathFormat[] = L"%sWQSpDevice%u\\Control";

std::wstring Path(std::size_t position)
{
    return wqspcfg::FormatString(kPathFormat, wqspcfg::kDeviceRoot, position / kValuesPerKey);
}

std::wstring Name(std::size_t position)
{
    return L"ResetOfUncommunicate" + std::to_wstring(position % kValuesPerKey);
}

std::vector<std::size_t> Positions(std::size_t values)
{
    std::mt19937 random(42);
    std::vector<std::size_t> positions(100000);
    for (auto& position : positions) {
        position = random() % values;
    }
    return positions;
}

void Library(benchmark::State& state, std::size_t values)
{
    static std::map<std::size_t, std::shared_ptr<wqspcfg::Store>> stores;
    auto& store = stores[values];
    if (!store) {
        store = CreateStore("values-" + std::to_string(values));
        const wqspcfg::WriteScope scope;
        for (std::size_t i = 0; i < values; ++i) {
            CRegKeyEx::SetValue(static_cast<DWORD>(i), CString(Name(i)), L"%s", Path(i));
        }
    }
    wqspcfg::SetCurrentStore(store);
    // As a caller does it: the name is a literal, the path a format. (A list of ready-made ones would not stay in the
    // cache, and be measured itself.)
    std::vector<CString> names;
    for (std::size_t i = 0; i < kValuesPerKey; ++i) {
        names.emplace_back(Name(i));
    }
    const auto positions = Positions(values);
    const wqspcfg::ReadScope scope;
    std::size_t i = 0;
    for (auto _ : state) {
        DWORD value = 0;
        const auto position = positions[i];
        if (!CRegKeyEx::QueryValue(value, names[position % kValuesPerKey], kPathFormat, wqspcfg::kDeviceRoot,
                                   position / kValuesPerKey)) {
            state.SkipWithError("a value is missing");
        }
        benchmark::DoNotOptimize(value);
        i = i + 1 < positions.size() ? i + 1 : 0;
    }
}

void RawGet(benchmark::State& state, std::size_t values, bool asRecord)
{
    const auto key = [](std::size_t position) {
        std::string flat;
        wqspcfg::AppendFoldedPath(wqspcfg::Hive::LocalMachine, Path(position), flat);
        flat += '\0';
        wqspcfg::AppendFolded(Name(position), flat);
        return flat;
    };
    static std::map<std::pair<std::size_t, bool>, std::unique_ptr<RawLmdb>> stores;
    auto& store = stores[{values, asRecord}];
    if (!store) {
        store = std::make_unique<RawLmdb>(Scratch() / ((asRecord ? "records-" : "raw-") + std::to_string(values)));
        auto* txn = store->Begin(0);
        std::string data(sizeof(DWORD), '\0');
        for (std::size_t i = 0; i < values; ++i) {
            if (asRecord) {
                data.resize(wqspcfg::kRecordHeader + Name(i).size() + sizeof(DWORD));
            }
            std::memcpy(data.data(), &i, sizeof(DWORD));
            store->Put(txn, key(i), data.data(), data.size());
        }
        Check(mdb_txn_commit(txn), "mdb_txn_commit");
    }
    // One behind the other, so that the processor fetches them ahead.
    std::string keys;
    std::vector<std::size_t> ends;
    for (const auto position : Positions(values)) {
        keys += key(position);
        ends.push_back(keys.size());
    }
    auto* txn = store->Begin(MDB_RDONLY);
    std::size_t i = 0;
    for (auto _ : state) {
        const auto begin = i == 0 ? 0 : ends[i - 1];
        auto k = RawLmdb::Val(keys.data() + begin, ends[i] - begin);
        MDB_val v;
        Check(mdb_get(txn, store->Dbi(), &k, &v), "mdb_get");
        DWORD value = 0;
        std::memcpy(&value, v.mv_data, sizeof value);
        benchmark::DoNotOptimize(value);
        i = i + 1 < ends.size() ? i + 1 : 0;
    }
    mdb_txn_abort(txn);
}

} // namespace

void RegisterValue()
{
    for (const auto values : std::initializer_list<std::size_t>{1000, 10000, 100000, 1000000}) {
        const auto name = "Value/" + std::to_string(values);
        benchmark::RegisterBenchmark((name + "/limit").c_str(), RawGet, values, false);
        benchmark::RegisterBenchmark((name + "/limit, as records").c_str(), RawGet, values, true);
        benchmark::RegisterBenchmark((name + "/WQSpCfg").c_str(), Library, values);
    }
}

} // namespace bench
