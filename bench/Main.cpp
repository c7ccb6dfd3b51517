// The benchmarks within one process. A name is WORK/CASE.../READER; bench/table.py makes the table of them.
#include "Benchmarks.h"

#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    bench::RegisterLoad();
    bench::RegisterServices();
    bench::RegisterSave();
    bench::RegisterValue();
    bench::RegisterDiagnosis();
    bench::RegisterFootprint();
    benchmark::RunSpecifiedBenchmarks();
    wqspcfg::SetCurrentStore(nullptr);
    benchmark::Shutdown();
    return 0;
}
