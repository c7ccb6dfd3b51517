// A whole Load from the Windows registry beside the same by hand: with each key opened once (the limit), and as a plain
// port that opens, queries and closes the key of every value. Tells how often each opens a key. Prints what Google
// Benchmark would, as JSON. Writes below HKEY_LOCAL_MACHINE\SOFTWARE\XFS: for a registry that is thrown away, such as
// that of a Wine prefix.
#include "Work.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <functional>
#include <map>
#include <set>

namespace {

using OpenKey = LSTATUS(WINAPI*)(HKEY, LPCWSTR, DWORD, REGSAM, PHKEY);

struct Opened
{
    bool counting = false;
    std::size_t calls = 0;
    std::set<std::wstring> keys;
};
Opened g_opened;

} // namespace

// The linker directs every call of RegOpenKeyExW in this program here (--wrap).
extern "C" {
extern OpenKey __real___imp_RegOpenKeyExW;
LSTATUS WINAPI CountedOpenKey(HKEY root, LPCWSTR path, DWORD options, REGSAM access, PHKEY key)
{
    if (g_opened.counting) {
        ++g_opened.calls;
        g_opened.keys.insert(path);
    }
    return __real___imp_RegOpenKeyExW(root, path, options, access, key);
}
OpenKey __wrap___imp_RegOpenKeyExW = CountedOpenKey;
}

namespace {

constexpr std::size_t kRepetitions = 51;

// By hand, each key opened once or, with `perValue`, for each value.
void LoadByHand(const bench::Work& work, bool perValue, bench::Result& result)
{
    std::map<std::wstring, HKEY> keys;
    for (const auto& question : work.questions) {
        HKEY key = nullptr;
        const auto known = keys.find(question.path);
        if (known != keys.end()) {
            key = known->second;
        } else if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, question.path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) {
            key = nullptr;
        }
        wchar_t buffer[256] = {};
        DWORD size = sizeof buffer - sizeof(wchar_t);
        DWORD type = REG_NONE;
        if (key == nullptr || RegQueryValueExW(key, question.name, nullptr, &type, reinterpret_cast<BYTE*>(buffer),
                                               &size) != ERROR_SUCCESS) {
            result.Missing(question);
        } else if (type == REG_SZ) {
            result.Text(question, std::wstring(buffer));
        } else {
            DWORD number = 0;
            std::memcpy(&number, buffer, sizeof number);
            result.Number(question, number);
        }
        if (!perValue) {
            keys.emplace(question.path, key);
        } else if (key != nullptr) {
            RegCloseKey(key);
        }
    }
    for (const auto& [path, key] : keys) {
        if (key != nullptr) {
            RegCloseKey(key);
        }
    }
}

template <class Run>
double Time(Run run)
{
    const auto begin = std::chrono::steady_clock::now();
    run();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - begin).count();
}

void Measure(const wqspcfg::ClassEntry& entry, const std::shared_ptr<wqspcfg::Store>& store)
{
    bench::StoreDevice(entry);
    const auto work = bench::RecordLoad(entry, store);
    const auto byHand = [&work](bool perValue) {
        bench::Result result;
        LoadByHand(work, perValue, result);
        return result.Log();
    };
    bench::CheckResult(work, byHand(true), "the plain port");

    struct Reader
    {
        const char* name;
        std::function<void()> load;
        std::vector<double> times;
    };
    Reader readers[] = {{"limit", [&] { byHand(false); }, {}},
                        {"WQSpCfg",
                         [&] {
                             wqspcfg::MemoryLog log;
                             bench::Load(entry, log);
                         },
                         {}},
                        {"per value", [&] { byHand(true); }, {}}};
    for (std::size_t i = 0; i < kRepetitions; ++i) {
        for (auto& reader : readers) {
            reader.times.push_back(Time(reader.load));
        }
    }
    for (auto& reader : readers) {
        g_opened = {};
        g_opened.counting = true;
        reader.load();
        g_opened.counting = false;
        std::sort(reader.times.begin(), reader.times.end());
        static const char* separator = "";
        std::printf("%s    {\"name\": \"Windows/%s/%s\", \"real_time\": %.3f, \"time_unit\": \"us\", "
                    "\"opens\": %zu, \"keys\": %zu}",
                    separator, bench::NameOf(entry).c_str(), reader.name, reader.times[kRepetitions / 2],
                    g_opened.calls, g_opened.keys.size());
        separator = ",\n";
    }
}

} // namespace

int main()
{
    wqspcfg::Error error;
    const auto store = wqspcfg::OpenStore("windows:", {}, error);
    if (!store) {
        bench::Die(error.message);
    }
    wqspcfg::SetCurrentStore(store);
    std::printf("{\n  \"benchmarks\": [\n");
    Measure(bench::ClassNamed(L"CSpIDCDCT10NRegInfo"), store);
    Measure(bench::ClassNamed(L"CSPCRMWQ09RegInfo"), store);
    std::printf("\n  ]\n}\n");
    if (wqspcfg::LastStoreError()) {
        bench::Die(wqspcfg::LastStoreError().message);
    }
    return 0;
}
