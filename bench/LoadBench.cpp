// A whole Load, object and log included, every value stored, beside the same values read and the same lines written by
// hand from raw LMDB (the limit) and from other stores.
#include "Benchmarks.h"
#include "RawLmdb.h"
#include "Reader.h"

#include "wqspcfg/platform/store/KeyHandle.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <functional>
#include <map>

namespace bench {

namespace {

// LMDB's key for a value, and its data: the four bytes of a number, or the text.
std::string RawKey(const std::string& path, const std::string& name)
{
    return path + '\0' + name;
}

enum class Part : std::uint8_t
{
    All,
    Reading,
    Lines,
};

// One transaction, one mdb_get for each value, one swprintf for each line; nothing else.
class HandWritten final : public Reader
{
  public:
    HandWritten(const std::string& directory, wqspcfg::Store& store, const Work& work, Part part)
        : m_raw(directory), m_part(part)
    {
        auto* txn = m_raw.Begin(0);
        ForEachValue(store, [&](const StoredValue& value) {
            const auto* number = reinterpret_cast<const char*>(&value.number);
            const auto data = value.isText ? value.text : std::string(number, sizeof value.number);
            m_raw.Put(txn, RawKey(value.path, value.name), data.data(), data.size());
        });
        Check(mdb_txn_commit(txn), "mdb_txn_commit");
        for (const auto& question : work.questions) {
            m_keys.push_back(RawKey(question.flatPath, question.flatName));
        }
        m_txn = m_raw.Begin(MDB_RDONLY); // renewed for every Load, which is cheaper than a new one
        mdb_txn_reset(m_txn);
    }
    ~HandWritten() override { mdb_txn_abort(m_txn); }
    HandWritten(const HandWritten&) = delete;
    HandWritten& operator=(const HandWritten&) = delete;

    void Load(const Work& work, Result& result) override
    {
        if (m_part == Part::Lines) {
            for (const auto& question : work.questions) {
                for (const auto& line : question.lines) {
                    result.Print(line, line.number, line.text.c_str());
                }
            }
            return;
        }
        Check(mdb_txn_renew(m_txn), "mdb_txn_renew");
        for (std::size_t i = 0; i < m_keys.size(); ++i) {
            const auto& question = work.questions[i];
            auto key = RawLmdb::Val(m_keys[i].data(), m_keys[i].size());
            MDB_val data;
            const int status = mdb_get(m_txn, m_raw.Dbi(), &key, &data);
            if (status != MDB_NOTFOUND) {
                Check(status, "mdb_get");
            }
            if (m_part == Part::Reading) {
                benchmark::DoNotOptimize(data);
            } else if (status == MDB_NOTFOUND) {
                result.Missing(question);
            } else if (question.isText) {
                result.Text(question, {static_cast<const char*>(data.mv_data), data.mv_size});
            } else {
                DWORD number = 0;
                std::memcpy(&number, data.mv_data, sizeof number);
                result.Number(question, number);
            }
        }
        mdb_txn_reset(m_txn);
    }

  private:
    RawLmdb m_raw;
    MDB_txn* m_txn = nullptr;
    Part m_part;
    std::vector<std::string> m_keys;
};

// A plain port: every value has its key opened, is queried, and has its key closed.
void LoadPlainly(const Work& work, CLog& log)
{
    DWORD number = 0;
    CString text;
    for (const auto& question : work.questions) {
        bool found = false;
        if (wqspcfg::KeyHandle key; key.Open(question.path)) {
            wqspcfg::KeyReader reader(key.Get());
            found =
                question.isText ? reader.Query(question.name.View(), text) : reader.Query(question.name.View(), number);
        }
        for (const auto& line : question.lines) {
            const auto* format = line.format.c_str();
            switch (line.form) {
            case Line::Form::Number:
                log.Info(wqspcfg::kLogCategory, format, line.label, found ? number : line.number);
                break;
            case Line::Form::Text:
                log.Info(wqspcfg::kLogCategory, format, line.label, text);
                break;
            case Line::Form::Fixed:
                log.Info(wqspcfg::kLogCategory, format, line.label, line.text);
                break;
            case Line::Form::Whole:
                log.Info(wqspcfg::kLogCategory, L"%s", line.text);
                break;
            }
        }
    }
}

std::vector<std::wstring> LinesOf(const wqspcfg::MemoryLog& log)
{
    std::vector<std::wstring> lines;
    for (const auto& entry : log.Entries()) {
        lines.push_back(entry.text);
    }
    return lines;
}

// One class in a store of one size.
struct LoadCase
{
    const wqspcfg::ClassEntry& entry;
    std::string name;
    std::shared_ptr<wqspcfg::Store> store;
    Work work;
};

LoadCase& CaseOf(const wqspcfg::ClassEntry& entry, std::size_t values)
{
    static std::map<std::string, LoadCase> cases;
    const auto name = NameOf(entry) + '-' + std::to_string(values);
    auto found = cases.find(name);
    if (found == cases.end()) {
        auto store = CreateDeviceStore(name, entry, values);
        auto work = RecordLoad(entry, store);
        found = cases.emplace(name, LoadCase{entry, name, std::move(store), std::move(work)}).first;
    }
    wqspcfg::SetCurrentStore(found->second.store);
    return found->second;
}

void Count(benchmark::State& state, const LoadCase& which)
{
    state.counters["values"] = static_cast<double>(which.work.questions.size());
    state.counters["lines"] = static_cast<double>(which.work.log.size());
    state.counters["keys"] = static_cast<double>(which.work.keys);
}

void RegisterLibrary(const wqspcfg::ClassEntry& entry, const std::string& name, std::size_t values)
{
    benchmark::RegisterBenchmark((name + "/WQSpCfg").c_str(), [&entry, values](benchmark::State& state) {
        const auto& which = CaseOf(entry, values);
        for (auto _ : state) {
            wqspcfg::MemoryLog log;
            Load(entry, log);
            benchmark::DoNotOptimize(log.Entries().data());
        }
        Count(state, which);
    })->Unit(benchmark::kMicrosecond);
}

void RegisterPlain(const wqspcfg::ClassEntry& entry, const std::string& name, std::size_t values)
{
    benchmark::RegisterBenchmark((name + "/per value").c_str(), [&entry, values](benchmark::State& state) {
        const auto& which = CaseOf(entry, values);
        wqspcfg::MemoryLog check;
        LoadPlainly(which.work, check);
        CheckResult(which.work, LinesOf(check), "per value");
        for (auto _ : state) {
            wqspcfg::MemoryLog log;
            LoadPlainly(which.work, log);
            benchmark::DoNotOptimize(log.Entries().data());
        }
    })->Unit(benchmark::kMicrosecond);
}

using OpenReader = std::unique_ptr<Reader> (*)(const std::string& directory, const LoadCase& which);

void RegisterReader(const wqspcfg::ClassEntry& entry, const std::string& name, std::size_t values, const char* reader,
                    OpenReader open)
{
    const auto run = [&entry, values, reader, open](benchmark::State& state) {
        static std::map<std::string, std::unique_ptr<Reader>> readers;
        const auto& which = CaseOf(entry, values);
        auto& opened = readers[which.name + reader];
        if (!opened) {
            opened = open(Scratch() / (which.name + '-' + reader), which);
            Result result;
            opened->Load(which.work, result);
            if (std::string_view(reader) != "limit, reading") {
                CheckResult(which.work, result.Log(), reader);
            }
        }
        for (auto _ : state) {
            Result result;
            opened->Load(which.work, result);
            benchmark::DoNotOptimize(result.Log().data());
        }
    };
    benchmark::RegisterBenchmark((name + '/' + reader).c_str(), run)->Unit(benchmark::kMicrosecond);
}

template <Part part>
std::unique_ptr<Reader> OpenHandWritten(const std::string& directory, const LoadCase& which)
{
    return std::make_unique<HandWritten>(directory, *which.store, which.work, part);
}

} // namespace

void ForEachValue(wqspcfg::Store& store, const std::function<void(const StoredValue&)>& visit)
{
    wqspcfg::Error error;
    const auto transaction = store.Begin(wqspcfg::Access::Read, error);
    if (!transaction) {
        Die(error.message);
    }
    const auto walk = [&](const auto& self, wqspcfg::Hive hive, const std::wstring& path) -> void {
        wqspcfg::KeyId key = 0;
        if (transaction->OpenKey(hive, path, key) != wqspcfg::Outcome::Found) {
            return;
        }
        StoredValue stored;
        wqspcfg::AppendFoldedPath(hive, path, stored.path);
        transaction->EnumValues(key, [&](std::wstring_view name, const wqspcfg::ValueView& value) {
            stored.name.clear();
            wqspcfg::AppendFolded(name, stored.name);
            CString text;
            stored.isText = ToValue(value, text);
            stored.text.assign(text.View().begin(), text.View().end());
            if (stored.isText || ToValue(value, stored.number)) {
                visit(stored);
            }
            return true;
        });
        std::vector<std::wstring> subkeys;
        transaction->EnumKeys(key, [&](std::wstring_view name) {
            subkeys.emplace_back(name);
            return true;
        });
        transaction->CloseKey(key);
        for (const auto& subkey : subkeys) {
            self(self, hive, path.empty() ? subkey : path + L'\\' + subkey);
        }
    };
    walk(walk, wqspcfg::Hive::LocalMachine, L"");
    walk(walk, wqspcfg::Hive::Users, L"");
}

void RegisterLoad()
{
    for (const auto* className : {L"CSpIDCDCT10NRegInfo", L"CSPCRMWQ09RegInfo"}) {
        const auto& entry = ClassNamed(className);
        for (const auto values : {std::size_t{0}, kTerminalValues}) {
            const auto name = "Load/" + NameOf(entry) + '/' + std::to_string(values);
            const auto reader = [&](const char* which, OpenReader open) {
                RegisterReader(entry, name, values, which, open);
            };
            reader("limit", OpenHandWritten<Part::All>);
            RegisterLibrary(entry, name, values);
            RegisterPlain(entry, name, values);
            reader("SQLite", [](const std::string& directory, const LoadCase& which) {
                return OpenSqlite(directory, *which.store);
            });
            reader("GLib", [](const std::string& directory, const LoadCase& which) {
                return OpenGLibKeyFile(directory, *which.store, true);
            });
            reader("Boost", [](const std::string& directory, const LoadCase& which) {
                return OpenBoostIni(directory, *which.store, true);
            });
            reader("GLib, parsed before", [](const std::string& directory, const LoadCase& which) {
                return OpenGLibKeyFile(directory, *which.store, false);
            });
            reader("Boost, parsed before", [](const std::string& directory, const LoadCase& which) {
                return OpenBoostIni(directory, *which.store, false);
            });
        }
        const auto name = "Load/" + NameOf(entry) + '/' + std::to_string(kTerminalValues);
        RegisterReader(entry, name, kTerminalValues, "limit, reading", OpenHandWritten<Part::Reading>);
        RegisterReader(entry, name, kTerminalValues, "limit, lines", OpenHandWritten<Part::Lines>);
    }
    // How the cost grows: with the store, and with what a class asks for.
    const auto& reader = ClassNamed(L"CSpIDCDCT10NRegInfo");
    for (const auto values : std::initializer_list<std::size_t>{1000, 100000, 1000000}) {
        const auto name = "Load/" + NameOf(reader) + '/' + std::to_string(values);
        RegisterReader(reader, name, values, "limit", OpenHandWritten<Part::All>);
        RegisterLibrary(reader, name, values);
    }
    for (const auto* className : {L"CSpCRDWQTYM1200RegInfo", L"CIDCRegInfo", L"CSIURegInfo", L"CCRMRegInfo"}) {
        const auto& entry = ClassNamed(className);
        const auto name = "Load/" + NameOf(entry) + '/' + std::to_string(kTerminalValues);
        RegisterReader(entry, name, kTerminalValues, "limit", OpenHandWritten<Part::All>);
        RegisterLibrary(entry, name, kTerminalValues);
    }
}

void RegisterServices()
{
    for (const int services : {1, 10, 100}) {
        const auto run = [services](benchmark::State& state) {
            const auto& entry = ClassNamed(L"CSpIDCDCT10NRegInfo");
            static std::map<int, std::shared_ptr<wqspcfg::Store>> stores;
            const auto name = [](int service) { return kPhysicalName + std::to_wstring(service); };
            auto& store = stores[services];
            if (!store) {
                store = CreateStore("services-" + std::to_string(services));
                for (int i = 0; i < services; ++i) {
                    StoreDevice(entry, name(i));
                }
            }
            wqspcfg::SetCurrentStore(store);
            for (auto _ : state) {
                for (int i = 0; i < services; ++i) {
                    wqspcfg::MemoryLog log;
                    wqspcfg::Create(entry, CString(name(i)), true)->Load(&log);
                    benchmark::DoNotOptimize(log.Entries().data());
                }
            }
        };
        benchmark::RegisterBenchmark(("Services/" + std::to_string(services) + "/WQSpCfg").c_str(), run)
            ->Unit(benchmark::kMicrosecond);
    }
}

} // namespace bench
