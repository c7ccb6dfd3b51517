// A whole Save, durable when it returns, beside the same values under the same keys in one durable commit of raw LMDB,
// and in one commit for each of them.
#include "Benchmarks.h"
#include "RawLmdb.h"

#include "wqspcfg/core/SavePolicy.h"
#include "wqspcfg/platform/store/Backup.h"

#include <benchmark/benchmark.h>

#include <array>
#include <map>

namespace bench {

namespace {

// Two states of the device whose values differ: a Save writes only what is not there yet.
constexpr std::size_t kStates = 2;

struct SaveCase
{
    std::shared_ptr<wqspcfg::Store> prepared;      // where the objects are loaded
    std::shared_ptr<wqspcfg::Store> store;         // written in one go, as the limit's is: neither is fragmented
    std::array<std::vector<Call>, kStates> writes; // the same values in the same order
    std::unique_ptr<RawLmdb> raw;
    std::vector<std::string> keys;

    void Put(MDB_txn* txn, std::size_t i, std::size_t state)
    {
        const auto& data = writes[state][i].data;
        raw->Put(txn, keys[i], data.data(), data.size());
    }
};

// An object that holds one of the states.
std::unique_ptr<CRegInfo> ObjectIn(const wqspcfg::ClassEntry& entry, std::size_t state)
{
    StoreDevice(entry, kPhysicalName, static_cast<DWORD>(1 + state), state == 0 ? L"some text" : L"more text");
    auto config = wqspcfg::Create(entry, kPhysicalName, true);
    config->Load(nullptr);
    return config;
}

SaveCase& CaseOf(const wqspcfg::ClassEntry& entry)
{
    static std::map<std::string, SaveCase> cases;
    const auto name = "save-" + NameOf(entry);
    auto& which = cases[name];
    if (!which.store) {
        which.prepared = CreateDeviceStore(name, entry, kTerminalValues);
        for (std::size_t state = 0; state < kStates; ++state) {
            wqspcfg::SetCurrentStore(which.prepared);
            const auto config = ObjectIn(entry, state);
            const wqspcfg::MemoryLog log;
            const auto recording = std::make_shared<RecordingStore>(which.prepared, log);
            wqspcfg::SetCurrentStore(recording);
            config->Save();
            for (const auto& call : recording->Calls()) {
                if (call.kind == Call::Kind::Set) {
                    which.writes[state].push_back(call);
                }
            }
        }

        auto& [first, second] = which.writes;
        if (first.size() != second.size()) {
            Die("a Save writes other values in another state");
        }
        // What is the same in both is written by nobody.
        for (auto i = first.size(); i-- > 0;) {
            if (first[i].path != second[i].path || first[i].name != second[i].name) {
                Die("a Save writes other values in another state");
            }
            if (first[i].data == second[i].data) {
                first.erase(first.begin() + static_cast<std::ptrdiff_t>(i));
                second.erase(second.begin() + static_cast<std::ptrdiff_t>(i));
            }
        }

        const auto compact = Scratch() / (name + "-compact");
        std::filesystem::create_directories(compact);
        wqspcfg::BackupCounts counts;
        wqspcfg::Error error;
        if (!wqspcfg::BackUpStore(which.prepared->Address(), compact + "/data.mdb", counts, error) ||
            !(which.store = wqspcfg::OpenStore("lmdb:" + compact, {}, error))) {
            Die(error.message);
        }

        which.raw = std::make_unique<RawLmdb>(Scratch() / (name + "-raw"));
        auto* txn = which.raw->Begin(0);
        for (std::size_t i = 0; i < kTerminalValues; ++i) {
            const auto key = "mSOFTWARE\\XFS\\PHYSICAL_SERVICES\\OTHER" + std::to_string(i / 20) + "\\CONTROL" +
                             std::string(1, '\0') + "VALUE" + std::to_string(i % 20);
            which.raw->Put(txn, key, &i, 4);
        }
        for (const auto& write : which.writes[0]) {
            auto& key = which.keys.emplace_back();
            wqspcfg::AppendFoldedPath(write.hive, write.path, key);
            key += '\0';
            wqspcfg::AppendFolded(write.name, key);
            which.Put(txn, which.keys.size() - 1, 0);
        }
        Check(mdb_txn_commit(txn), "mdb_txn_commit");
    }
    return which;
}

void Save(benchmark::State& state, const wqspcfg::ClassEntry& entry)
{
    const auto& which = CaseOf(entry);
    wqspcfg::SetCurrentStore(which.prepared);
    const std::array<std::unique_ptr<CRegInfo>, kStates> objects{ObjectIn(entry, 0), ObjectIn(entry, 1)};
    wqspcfg::SetCurrentStore(which.store);
    std::size_t turn = 0;
    for (auto _ : state) {
        objects[turn++ % kStates]->Save();
    }
    state.counters["values"] = static_cast<double>(which.keys.size());
}

// A Save that finds everything as it would write it.
void SaveUnchanged(benchmark::State& state, const wqspcfg::ClassEntry& entry, wqspcfg::SavePolicy policy)
{
    const auto& which = CaseOf(entry);
    wqspcfg::SetSavePolicy(policy);
    wqspcfg::SetCurrentStore(which.prepared);
    const auto object = ObjectIn(entry, 0);
    wqspcfg::SetCurrentStore(which.store);
    object->Load(nullptr);
    object->Save();
    for (auto _ : state) {
        object->Save();
    }
    wqspcfg::SetSavePolicy(wqspcfg::SavePolicy::All);
}

void CommitOnce(benchmark::State& state, const wqspcfg::ClassEntry& entry)
{
    auto& which = CaseOf(entry);
    std::size_t turn = 0;
    for (auto _ : state) {
        auto* txn = which.raw->Begin(0);
        for (std::size_t i = 0; i < which.keys.size(); ++i) {
            which.Put(txn, i, turn % kStates);
        }
        Check(mdb_txn_commit(txn), "mdb_txn_commit");
        ++turn;
    }
}

void CommitEach(benchmark::State& state, const wqspcfg::ClassEntry& entry)
{
    auto& which = CaseOf(entry);
    std::size_t turn = 0;
    for (auto _ : state) {
        for (std::size_t i = 0; i < which.keys.size(); ++i) {
            auto* txn = which.raw->Begin(0);
            which.Put(txn, i, turn % kStates);
            Check(mdb_txn_commit(txn), "mdb_txn_commit");
        }
        ++turn;
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
        add("unchanged", [](benchmark::State& state, const wqspcfg::ClassEntry& of) {
            SaveUnchanged(state, of, wqspcfg::SavePolicy::All);
        });
        add("unchanged, own changes", [](benchmark::State& state, const wqspcfg::ClassEntry& of) {
            SaveUnchanged(state, of, wqspcfg::SavePolicy::OwnChanges);
        });
    }
}

} // namespace bench
