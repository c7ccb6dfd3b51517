// Writes the registry of an export as hives, SOFTWARE among 200,000 other keys, as on a terminal's disk.
//   bench_large_hive EXPORT DIRECTORY
#include "tools/hive/HiveTesting.h"

#include <cstdio>

namespace {

using namespace wqspcfg;
using namespace wqspcfg::test;

// Programs register their classes; each of these has two values.
void AddClasses(HiveWriter& software)
{
    constexpr int kClasses = 1000;
    constexpr int kPerClass = 10;
    constexpr int kPerKey = 19;
    const std::vector<HiveValue> values = {{"", ValueType::Sz, SzBytes(L"C:\\Windows\\System32\\component server.dll")},
                                           {"ThreadingModel", ValueType::Sz, SzBytes(L"Both")}};
    const auto classes = software.AddKey(software.Root(), "Classes");
    for (int i = 0; i < kClasses; ++i) {
        const auto each = software.AddKey(classes, "Class" + std::to_string(i));
        for (int j = 0; j < kPerClass; ++j) {
            const auto key = software.AddKey(each, "Interface" + std::to_string(j));
            for (int k = 0; k < kPerKey; ++k) {
                software.SetValues(software.AddKey(key, "Server" + std::to_string(k)), values);
            }
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: bench_large_hive EXPORT DIRECTORY\n");
        return 2;
    }
    const auto store = Open("reg:" + std::string(argv[1]));
    WriteHives(*store, argv[2], AddClasses);
    return ::testing::Test::HasFailure() ? 1 : 0;
}
