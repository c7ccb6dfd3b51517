// A whole Load and a whole Save of a device model, every value stored, beside the least that the same work can cost: a
// hand-written loop of as many mdb_get in one transaction and as many swprintf lines, and one durable LMDB commit.
#include "CountingStore.h"
#include "RawLmdb.h"
#include "ScratchDir.h"

#include "classes/CRMRegInfo.h"
#include "classes/IDCRegInfo.h"
#include "classes/SIURegInfo.h"
#include "core/settings/Settings.h"
#include "models/crd/SpCRDWQTYM1200RegInfo.h"
#include "models/crm/SPCRMWQ09RegInfo.h"
#include "models/idc/SpIDCDCT10NRegInfo.h"
#include "platform/store/Session.h"

#include <benchmark/benchmark.h>

#include <cwchar>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr unsigned kOtherValues = 10000; // a terminal's store
constexpr wchar_t kPhysicalName[] = L"WQSpDevice";
constexpr wchar_t kServiceRoot[] = L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\";
constexpr wchar_t kDeviceRoot[] = L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\";

void NameDevice()
{
    CRegKeyEx::SetValue(CString(L"WQSpDevice.exe"), L"ExeDllMother", L"%s%s", kServiceRoot, kPhysicalName);
}

// A store of a terminal's size that holds every value of the model.
template <class Config>
std::shared_ptr<wqspcfg::Store> TerminalStore()
{
    static std::shared_ptr<wqspcfg::Store> store;
    if (store) {
        wqspcfg::SetCurrentStore(store);
        return store;
    }
    wqspcfg::Error error;
    const std::wstring wide(Config::Settings().className);
    store = wqspcfg::OpenStore("lmdb:" + (bench::Scratch() / std::string(wide.begin(), wide.end())), {.create = true},
                               error);
    if (!store) {
        std::fprintf(stderr, "%s\n", error.message.c_str());
        std::exit(1);
    }
    wqspcfg::SetCurrentStore(store);
    const wqspcfg::WriteScope scope;
    for (unsigned i = 0; i < kOtherValues; ++i) {
        CRegKeyEx::SetValue(i, CString(L"Value" + std::to_wstring(i % 20)), L"%s%s\\Control", kDeviceRoot,
                            L"Other" + std::to_wstring(i / 20));
    }
    NameDevice();
    Config config(kPhysicalName, true);
    config.Save(); // what loops write
    wqspcfg::Saving saving(config);
    const auto write = [&](auto& self, std::span<const wqspcfg::Setting> rows) -> void {
        for (const auto& row : rows) {
            if (row.rows != nullptr) {
                if (row.turns == 1) {
                    self(self, {row.rows, row.rowCount});
                }
            } else if (row.type == wqspcfg::Type::String || row.type == wqspcfg::Type::Char) {
                saving.Put(row.key, row.name, CString(L"some text"));
            } else if (row.type != wqspcfg::Type::None) {
                saving.Put(row.key, row.name, 1);
            }
        }
    };
    for (const auto* table = &Config::Settings(); table != nullptr; table = table->base ? &table->base() : nullptr) {
        write(write, table->rows);
    }
    NameDevice(); // which is among the settings
    CRegKeyEx::SetValue(0, L"Count", L"%sWQSpDevice\\NoteType", kDeviceRoot);
    return store;
}

struct Work
{
    std::size_t values = 0; // that are asked for, found or not
    std::size_t lines = 0;
};

template <class Config>
Work WorkOfOneLoad()
{
    const auto store = TerminalStore<Config>();
    const auto counting = std::make_shared<bench::CountingStore>(store);
    wqspcfg::SetCurrentStore(counting);
    wqspcfg::MemoryLog log;
    {
        Config config(kPhysicalName, true);
        config.Load(&log);
    }
    wqspcfg::SetCurrentStore(store);
    return {counting->Queries(), log.Entries().size()};
}

template <class Config>
void LoadClass(benchmark::State& state)
{
    const auto store = TerminalStore<Config>();
    for (auto _ : state) {
        wqspcfg::MemoryLog log;
        Config config(kPhysicalName, true);
        config.Load(&log);
        benchmark::DoNotOptimize(log.Entries().data());
    }
    const auto work = WorkOfOneLoad<Config>();
    state.counters["values"] = static_cast<double>(work.values);
    state.counters["lines"] = static_cast<double>(work.lines);
    wqspcfg::SetCurrentStore(nullptr);
}

template <class Config>
void HandWrittenLoop(benchmark::State& state)
{
    const auto work = WorkOfOneLoad<Config>();
    wqspcfg::SetCurrentStore(nullptr);
    static bench::RawLmdb raw(bench::Scratch() / ("raw" + std::to_string(work.values)));
    std::vector<std::string> keys;
    {
        auto* txn = raw.Begin(0);
        const char data[24] = {};
        for (unsigned i = 0; i < kOtherValues; ++i) {
            raw.Put(txn, "mSOFTWARE\\XFS\\PHYSICAL_SERVICES\\OTHER" + std::to_string(i), data, sizeof data);
        }
        for (std::size_t i = 0; i < work.values; ++i) {
            keys.push_back("mSOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSPCRD\\CONTROLxVALUEOFTHEMODEL" + std::to_string(i));
            raw.Put(txn, keys.back(), data, sizeof data);
        }
        bench::Check(mdb_txn_commit(txn), "mdb_txn_commit");
    }
    for (auto _ : state) {
        std::vector<std::wstring> log;
        auto* txn = raw.Begin(MDB_RDONLY);
        for (const auto& key : keys) {
            auto k = bench::RawLmdb::Val(key.data(), key.size());
            MDB_val v;
            bench::Check(mdb_get(txn, raw.Dbi(), &k, &v), "mdb_get");
            if (log.size() == work.lines) {
                continue;
            }
            wchar_t line[512];
            const int length = std::swprintf(line, std::size(line),
                                             L"[CFG] %40ls : %d[the retain count may be cleared while the device "
                                             L"is faulty or offline: 0 no; nonzero yes]",
                                             L"AllowResetCountByErrDevStatu", *static_cast<const char*>(v.mv_data));
            log.emplace_back(line, static_cast<std::size_t>(length));
        }
        mdb_txn_abort(txn);
        benchmark::DoNotOptimize(log.data());
    }
    state.counters["values"] = static_cast<double>(work.values);
    state.counters["lines"] = static_cast<double>(work.lines);
}
#define WQSPCFG_BENCH_CLASS(Class)                                                                                     \
    BENCHMARK_TEMPLATE(LoadClass, Class)->Unit(benchmark::kMicrosecond);                                               \
    BENCHMARK_TEMPLATE(HandWrittenLoop, Class)->Unit(benchmark::kMicrosecond)

WQSPCFG_BENCH_CLASS(CSpCRDWQTYM1200RegInfo);
WQSPCFG_BENCH_CLASS(CIDCRegInfo);
WQSPCFG_BENCH_CLASS(CCRMRegInfo);
WQSPCFG_BENCH_CLASS(CSIURegInfo);
WQSPCFG_BENCH_CLASS(CSpIDCDCT10NRegInfo);
WQSPCFG_BENCH_CLASS(CSPCRMWQ09RegInfo);

void SaveModel(benchmark::State& state)
{
    const auto store = TerminalStore<CSpCRDWQTYM1200RegInfo>();
    CSpCRDWQTYM1200RegInfo config(kPhysicalName, true);
    config.Load(nullptr);
    for (auto _ : state) {
        ++config.m_dwCurNumber;
        config.Save();
    }
    wqspcfg::SetCurrentStore(nullptr);
}
BENCHMARK(SaveModel)->Unit(benchmark::kMicrosecond)->UseRealTime();

void RawDurableCommit(benchmark::State& state)
{
    bench::RawLmdb raw(bench::Scratch() / "commit");
    unsigned generation = 0;
    for (auto _ : state) {
        auto* txn = raw.Begin(0);
        ++generation;
        for (unsigned i = 0; i < 32; ++i) {
            raw.Put(txn, "mSOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSPCRD\\CONTROLxVALUE" + std::to_string(i), &generation,
                    sizeof generation);
        }
        bench::Check(mdb_txn_commit(txn), "mdb_txn_commit");
    }
}
BENCHMARK(RawDurableCommit)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace
