// A whole Load from the Windows registry beside a plain port that opens, queries and closes the key of every value, and
// how often each opens a key. Prints what Google Benchmark would, as JSON. Writes below HKEY_LOCAL_MACHINE\SOFTWARE\XFS:
// for a registry that is thrown away, such as that of a Wine prefix.
#include "Work.h"

#include <algorithm>
#include <chrono>
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

constexpr std::size_t kRepetitions = 25;

// Members and log lines by hand, each value through a key of its own.
void LoadPlainly(const bench::Work& work, bench::Result& result)
{
    for (const auto& question : work.questions) {
        wchar_t buffer[256] = {};
        DWORD size = sizeof buffer - sizeof(wchar_t);
        DWORD type = REG_NONE;
        HKEY key = nullptr;
        auto status = RegOpenKeyExW(HKEY_LOCAL_MACHINE, question.path.c_str(), 0, KEY_READ, &key);
        if (status == ERROR_SUCCESS) {
            status = RegQueryValueExW(key, question.name.GetString(), nullptr, &type, reinterpret_cast<BYTE*>(buffer),
                                      &size);
            RegCloseKey(key);
        }
        if (status != ERROR_SUCCESS) {
            result.Missing(question);
        } else if (type == REG_SZ) {
            result.Text(question, std::wstring(buffer));
        } else {
            DWORD number = 0;
            std::memcpy(&number, buffer, sizeof number);
            result.Number(question, number);
        }
    }
}

void Report(const wqspcfg::ClassEntry& entry, const char* reader, std::vector<double> times, bool last)
{
    std::sort(times.begin(), times.end());
    std::printf("    {\"name\": \"Windows/%s/%s\", \"real_time\": %.3f, \"time_unit\": \"us\", "
                "\"opens\": %zu, \"keys\": %zu}%s\n",
                bench::NameOf(entry).c_str(), reader, times[times.size() / 2], g_opened.calls, g_opened.keys.size(),
                last ? "" : ",");
}

template <class Run>
double Time(Run run)
{
    const auto begin = std::chrono::steady_clock::now();
    run();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - begin).count();
}

template <class Run>
void CountOpens(Run run)
{
    g_opened = {};
    g_opened.counting = true;
    run();
    g_opened.counting = false;
}

void Measure(const wqspcfg::ClassEntry& entry, const std::shared_ptr<wqspcfg::Store>& store, bool last)
{
    bench::StoreDevice(entry);
    const auto work = bench::RecordLoad(entry, store);
    const auto library = [&] {
        wqspcfg::MemoryLog log;
        bench::Load(entry, log);
    };
    const auto plain = [&] {
        bench::Result result;
        LoadPlainly(work, result);
    };
    bench::Result check;
    LoadPlainly(work, check);
    bench::CheckResult(work, check.Log(), "the plain port");
    std::vector<double> libraryTimes;
    std::vector<double> plainTimes;
    for (std::size_t i = 0; i < kRepetitions; ++i) {
        libraryTimes.push_back(Time(library));
        plainTimes.push_back(Time(plain));
    }
    CountOpens(library);
    Report(entry, "WQSpCfg", std::move(libraryTimes), false);
    CountOpens(plain);
    Report(entry, "per value", std::move(plainTimes), last);
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
    Measure(bench::ClassNamed(L"CSpIDCDCT10NRegInfo"), store, false);
    Measure(bench::ClassNamed(L"CSPCRMWQ09RegInfo"), store, true);
    std::printf("  ]\n}\n");
    if (wqspcfg::LastStoreError()) {
        bench::Die(wqspcfg::LastStoreError().message);
    }
    return 0;
}
