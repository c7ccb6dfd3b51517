// A whole Load and a whole Save of a device model, every value stored, beside the least that the same work can cost: a
// hand-written loop of as many mdb_get in one transaction and as many swprintf lines, and one durable LMDB commit.
#include "RawLmdb.h"
#include "ScratchDir.h"

#include "core/settings/Settings.h"
#include "models/crd/SpCRDWQTYM1200RegInfo.h"
#include "platform/store/Session.h"

#include <benchmark/benchmark.h>

#include <cwchar>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr unsigned kOtherValues = 10000; // a terminal's store
constexpr wchar_t kPhysicalName[] = L"WQSpCRD";

// A store of a terminal's size that holds every value of the model.
template <class Config>
std::shared_ptr<wqspcfg::Store> TerminalStore(const char* name)
{
    wqspcfg::Error error;
    auto store = wqspcfg::OpenStore("lmdb:" + (bench::Scratch() / name), {.create = true}, error);
    if (!store) {
        std::fprintf(stderr, "%s\n", error.message.c_str());
        std::exit(1);
    }
    wqspcfg::SetCurrentStore(store);
    const wqspcfg::WriteScope scope;
    for (unsigned i = 0; i < kOtherValues; ++i) {
        CRegKeyEx::SetValue(i, CString(L"Value" + std::to_wstring(i % 20)), L"%s%s\\Control",
                            L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\", L"Other" + std::to_wstring(i / 20));
    }
    CRegKeyEx::SetValue(CString(L"WQSpCRD.exe"), L"ExeDllMother", L"%s%s", L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\",
                        kPhysicalName);
    Config config(kPhysicalName, true);
    wqspcfg::Saving saving(config);
    const auto write = [&](auto& self, std::span<const wqspcfg::Setting> rows) -> void {
        for (const auto& row : rows) {
            if (row.rows != nullptr) {
                self(self, {row.rows, row.rowCount});
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
    return store;
}

std::size_t LinesOfOneLoad()
{
    wqspcfg::MemoryLog log;
    CSpCRDWQTYM1200RegInfo config(kPhysicalName, true);
    config.Load(&log);
    return log.Entries().size();
}

void LoadModel(benchmark::State& state)
{
    const auto store = TerminalStore<CSpCRDWQTYM1200RegInfo>("load");
    for (auto _ : state) {
        wqspcfg::MemoryLog log;
        CSpCRDWQTYM1200RegInfo config(kPhysicalName, true);
        config.Load(&log);
        benchmark::DoNotOptimize(log.Entries().data());
    }
    state.counters["lines"] = static_cast<double>(LinesOfOneLoad());
    wqspcfg::SetCurrentStore(nullptr);
}
BENCHMARK(LoadModel)->Unit(benchmark::kMicrosecond);

void HandWrittenLoop(benchmark::State& state)
{
    const auto store = TerminalStore<CSpCRDWQTYM1200RegInfo>("hand");
    const auto lines = LinesOfOneLoad();
    wqspcfg::SetCurrentStore(nullptr);
    bench::RawLmdb raw(bench::Scratch() / "raw");
    std::vector<std::string> keys;
    {
        auto* txn = raw.Begin(0);
        const char data[24] = {};
        for (unsigned i = 0; i < kOtherValues; ++i) {
            raw.Put(txn, "mSOFTWARE\\XFS\\PHYSICAL_SERVICES\\OTHER" + std::to_string(i), data, sizeof data);
        }
        for (std::size_t i = 0; i < lines; ++i) {
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
    state.counters["lines"] = static_cast<double>(lines);
}
BENCHMARK(HandWrittenLoop)->Unit(benchmark::kMicrosecond);

void SaveModel(benchmark::State& state)
{
    const auto store = TerminalStore<CSpCRDWQTYM1200RegInfo>("save");
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
