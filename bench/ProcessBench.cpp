// Whole processes, from their start to their end: a Load on a large store, import and export. A program of its own,
// since a process starts with the peak memory of its parent, and this one stays small.
#include "ScratchDir.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <vector>

namespace {

constexpr std::size_t kMillion = 1000000;
constexpr char kService[] = "WQSpDevice";
constexpr char kModel[] = "CSpIDCDCT10NRegInfo";

[[noreturn]] void Die(const std::string& message)
{
    std::fprintf(stderr, "%s\n", message.c_str());
    std::exit(1);
}

struct Run
{
    double seconds = 0;
    double peakBytes = 0;
};

// Standard output and error are thrown away.
Run RunProgram(const char* program, std::initializer_list<std::string> arguments)
{
    std::vector<char*> argv{const_cast<char*>(program)};
    for (const auto& argument : arguments) {
        argv.push_back(const_cast<char*>(argument.c_str()));
    }
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
    const auto begin = std::chrono::steady_clock::now();
    pid_t child = 0;
    int status = 0;
    rusage usage{};
    if (posix_spawn(&child, program, &actions, nullptr, argv.data(), environ) != 0 ||
        wait4(child, &status, 0, &usage) != child || status != 0) {
        Die(std::string(program) + ' ' + *arguments.begin() + " ... failed");
    }
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
    posix_spawn_file_actions_destroy(&actions);
    return {time.count(), static_cast<double>(usage.ru_maxrss) * 1024};
}

// A registry export as regedit writes it, of that many values, twenty to a key, every fourth a text.
std::string RegFile(std::size_t values)
{
    const auto path = bench::Scratch() / (std::to_string(values) + ".reg");
    if (std::filesystem::exists(path)) {
        return path;
    }
    std::ofstream file(path, std::ios::binary);
    const auto write = [&file](const std::string& line) {
        std::string wide;
        for (const char character : line + "\r\n") {
            wide += character;
            wide += '\0';
        }
        file << wide;
    };
    file << "\xFF\xFE";
    write("Windows Registry Editor Version 5.00");
    write("");
    write("[HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\SERVICE_PROVIDERS\\WQSpDevice]");
    write("\"ExeDllMother\"=\"WQSpDevice.exe\"");
    for (std::size_t i = 1; i < values; ++i) {
        if (i % 20 == 1) {
            write("");
            write("[HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpOther" + std::to_string(i / 20) +
                  "\\Control]");
        }
        const auto name = "\"ResetOfUncommunicate" + std::to_string(i % 20) + "\"=";
        char number[16];
        std::snprintf(number, sizeof number, "dword:%08x", static_cast<unsigned>(i));
        write(name + (i % 4 == 0 ? "\"C:\\\\XFS\\\\Media\\\\" + std::to_string(i) + ".jpg\"" : number));
    }
    write("");
    if (!file.flush()) {
        Die(path + " cannot be written");
    }
    return path;
}

// A store that holds such an export and one device.
std::string Store(std::size_t values)
{
    const auto directory = bench::Scratch() / ("store-" + std::to_string(values));
    const auto address = "lmdb:" + directory;
    if (!std::filesystem::exists(directory)) {
        RunProgram(BENCH_WQSPCFG, {"--store", address, "import", RegFile(values)});
        RunProgram(BENCH_WQSPCFG, {"--store", address, "save", kService, "--physical", "--model", kModel});
    }
    return address;
}

void Start(benchmark::State& state, std::size_t values, bool load)
{
    const auto store = Store(values);
    for (auto _ : state) {
        const auto run =
            load ? RunProgram(BENCH_WQSPCFG, {"--store", store, "load", kService, "--physical", "--model", kModel})
                 : RunProgram(BENCH_OPEN, {store});
        state.SetIterationTime(run.seconds);
    }
}

std::string Terminal()
{
    const auto directory = bench::Scratch() / "terminal";
    if (!std::filesystem::exists(directory)) {
        RunProgram(BENCH_WQSPCFG, {"--store", "lmdb:" + directory, "import", BENCH_EXAMPLE});
    }
    return "lmdb:" + directory;
}

// What the program tells of a service, beside the lines of its Load.
void Explain(benchmark::State& state, bool explain)
{
    const auto store = Terminal();
    for (auto _ : state) {
        state.SetIterationTime(RunProgram(BENCH_WQSPCFG, {"--store", store, explain ? "explain" : "load",
                                                          "CardDispenser", "--model", "CSpCRDWQTYM1200RegInfo"})
                                   .seconds);
    }
}

// A check of the whole terminal, beside a program that loads all its services.
void Check(benchmark::State& state, bool check)
{
    const auto store = Terminal();
    for (auto _ : state) {
        state.SetIterationTime(
            (check ? RunProgram(BENCH_WQSPCFG, {"--store", store, "check"}) : RunProgram(BENCH_LOAD_ALL, {store}))
                .seconds);
    }
}

#if defined(BENCH_LARGE_HIVE)
// The services of a terminal, from the registry on its disk.
void Disk(benchmark::State& state)
{
    const auto directory = bench::Scratch() / "disk";
    if (std::filesystem::create_directory(directory)) {
        RunProgram(BENCH_LARGE_HIVE, {BENCH_EXAMPLE, directory});
    }
    double peak = 0;
    for (auto _ : state) {
        const auto run = RunProgram(BENCH_WQSPCFG, {"--store", "hive:" + directory, "services"});
        peak = std::max(peak, run.peakBytes);
        state.SetIterationTime(run.seconds);
    }
    state.counters["peak"] = peak;
    state.counters["size"] = static_cast<double>(std::filesystem::file_size(directory + "/SOFTWARE"));
}
#endif

void Transfer(benchmark::State& state, std::size_t values, bool import)
{
    const auto file = RegFile(values);
    const auto store = import ? std::string() : Store(values);
    const auto target = bench::Scratch() / "target";
    double peak = 0;
    double size = 0;
    for (auto _ : state) {
        std::filesystem::remove_all(target);
        const auto run = import ? RunProgram(BENCH_WQSPCFG, {"--store", "lmdb:" + target, "import", file})
                                : RunProgram(BENCH_WQSPCFG, {"--store", store, "export", "-o", target});
        size = static_cast<double>(std::filesystem::file_size(import ? file : target));
        peak = std::max(peak, run.peakBytes);
        state.SetIterationTime(run.seconds);
    }
    std::filesystem::remove_all(target);
    state.counters["values"] = static_cast<double>(values);
    state.counters["peak"] = peak;
    state.counters["size"] = size;
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    for (const auto values : {kMillion / 100, kMillion}) {
        const auto name = "Start/" + std::to_string(values);
        for (const bool load : {false, true}) {
            benchmark::RegisterBenchmark((name + (load ? "/WQSpCfg" : "/limit")).c_str(), Start, values, load)
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond);
        }
    }
    for (const auto values : {kMillion / 10, kMillion}) {
        for (const bool import : {true, false}) {
            benchmark::RegisterBenchmark(
                ((import ? "Import/" : "Export/") + std::to_string(values) + "/WQSpCfg").c_str(), Transfer, values,
                import)
                ->UseManualTime()
                ->Iterations(1)
                ->Unit(benchmark::kMillisecond);
        }
    }
    const auto add = [](const char* name, void (*run)(benchmark::State&, bool), bool ours) {
        benchmark::RegisterBenchmark(name, run, ours)->UseManualTime()->Unit(benchmark::kMillisecond);
    };
    add("Explain/limit", Explain, false);
    add("Explain/WQSpCfg", Explain, true);
    add("Check/limit", Check, false);
    add("Check/WQSpCfg", Check, true);
#if defined(BENCH_LARGE_HIVE)
    benchmark::RegisterBenchmark("Disk/WQSpCfg", Disk)->UseManualTime()->Unit(benchmark::kMillisecond);
#endif
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
