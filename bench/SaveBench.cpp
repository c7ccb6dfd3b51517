// A whole Save, durable when it returns, beside the same values under the same keys in one durable commit of raw LMDB,
// and in one commit for each of them.
#include "Benchmarks.h"
#include "RawLmdb.h"

#include <benchmark/benchmark.h>

#include <map>

namespace bench {

namespace {

struct SaveCase
{
    std::shared_ptr<wqspcfg::Store> store;
    std::vector<Call> writes;
    std::unique_ptr<RawLmdb> raw;
    std::vector<std::string> keys;

    void Put(MDB_txn* txn, std::size_t i) { raw->Put(txn, keys[i], writes[i].data.data(), writes[i].data.size()); }
};

SaveCase& CaseOf(const wqspcfg::ClassEntry& entry)
{
    static std::map<std::string, SaveCase> cases;
    const auto name = "save-" + NameOf(entry);
    auto& which = cases[name];
    if (!which.store) {
        which.store = CreateDeviceStore(name, entry, kTerminalValues);
        const auto config = wqspcfg::Create(entry, kPhysicalName, true);
        config->Load(nullptr);
        const wqspcfg::MemoryLog log;
        const auto recording = std::make_shared<RecordingStore>(which.store, log);
        wqspcfg::SetCurrentStore(recording);
        config->Save();
        for (const auto& call : recording->Calls()) {
            if (call.kind == Call::Kind::Set) {
                which.writes.push_back(call);
            }
        }

        which.raw = std::make_unique<RawLmdb>(Scratch() / (name + "-raw"));
        auto* txn = which.raw->Begin(0);
        for (std::size_t i = 0; i < kTerminalValues; ++i) {
            const auto key = "mSOFTWARE\\XFS\\PHYSICAL_SERVICES\\OTHER" + std::to_string(i / 20) + "\\CONTROL" +
                             std::string(1, '\0') + "VALUE" + std::to_string(i % 20);
            which.raw->Put(txn, key, &i, 4);
        }
        for (std::size_t i = 0; i < which.writes.size(); ++i) {
            auto& key = which.keys.emplace_back();
            wqspcfg::AppendFoldedPath(which.writes[i].hive, which.writes[i].path, key);
            key += '\0';
            wqspcfg::AppendFolded(which.writes[i].name, key);
            which.Put(txn, i);
        }
        Check(mdb_txn_commit(txn), "mdb_txn_commit");
    }
    wqspcfg::SetCurrentStore(which.store);
    return which;
}

void Save(benchmark::State& state, const wqspcfg::ClassEntry& entry)
{
    const auto& which = CaseOf(entry);
    const auto config = wqspcfg::Create(entry, kPhysicalName, true);
    config->Load(nullptr);
    for (auto _ : state) {
        config->Save();
    }
    state.counters["values"] = static_cast<double>(which.writes.size());
}

void CommitOnce(benchmark::State& state, const wqspcfg::ClassEntry& entry)
{
    auto& which = CaseOf(entry);
    for (auto _ : state) {
        auto* txn = which.raw->Begin(0);
        for (std::size_t i = 0; i < which.keys.size(); ++i) {
            which.Put(txn, i);
        }
        Check(mdb_txn_commit(txn), "mdb_txn_commit");
    }
}

void CommitEach(benchmark::State& state, const wqspcfg::ClassEntry& entry)
{
    auto& which = CaseOf(entry);
    for (auto _ : state) {
        for (std::size_t i = 0; i < which.keys.size(); ++i) {
            auto* txn = which.raw->Begin(0);
            which.Put(txn, i);
            Check(mdb_txn_commit(txn), "mdb_txn_commit");
        }
    }
}

} // namespace

void RegisterSave()
{
    for (const auto* className : {L"CSpIDCDCT10NRegInfo", L"CSPCRMWQ09RegInfo"}) {
        const auto& entry = ClassNamed(className);
        const auto name = "Save/" + NameOf(entry) + '/';
        const auto add = [&](const char* reader, void (*run)(benchmark::State&, const wqspcfg::ClassEntry&)) {
            benchmark::RegisterBenchmark((name + reader).c_str(),
                                         [&entry, run](benchmark::State& state) { run(state, entry); })
                ->Unit(benchmark::kMicrosecond)
                ->UseRealTime();
        };
        add("limit", CommitOnce);
        add("WQSpCfg", Save);
        add("per value", CommitEach);
    }
}

} // namespace bench
