#include "bench/comparison.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <vector>

#include <malloc.h>

namespace velmbench {
namespace {
constexpr auto bytesCounter = "bytes";
const std::string oursSuffix = "/velm";
const std::string yardstickSuffix = "/yardstick";

struct Comparison
{
    std::string name;
    bool isBytes;
};
std::vector<Comparison> comparisons;

void add(const Comparison& comparison, const Workload& ours, const Workload& yardstick, int repetitions)
{
    comparisons.push_back(comparison);
    for (const auto& [suffix, workload] : {std::pair(oursSuffix, ours), std::pair(yardstickSuffix, yardstick)})
        benchmark::RegisterBenchmark((comparison.name + suffix).c_str(), workload)
            ->Iterations(1)
            ->Repetitions(repetitions)
            ->MeasureProcessCPUTime()
            ->Unit(benchmark::kMillisecond);
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Collects milliseconds, of the processor, and bytes by the names of the benchmarks.
class Collector : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration)
                continue;
            const auto bytes = run.counters.find(bytesCounter);
            m_values[run.run_name.function_name].push_back(bytes == run.counters.end() ? run.GetAdjustedCPUTime()
                                                                                       : double(bytes->second));
        }
    }

    void print() const
    {
        std::printf("%-52s %14s %14s %7s\n", "", "velm", "yardstick", "ratio");
        for (const Comparison& comparison : comparisons) {
            const auto ours = m_values.find(comparison.name + oursSuffix);
            const auto yardstick = m_values.find(comparison.name + yardstickSuffix);
            if (ours == m_values.end() || yardstick == m_values.end())
                continue;
            const char* format =
                comparison.isBytes ? "%-52s %12.0f B %12.0f B %7.1f\n" : "%-52s %11.2f ms %11.2f ms %7.1f\n";
            const double our = median(ours->second);
            const double their = median(yardstick->second);
            std::printf(format, comparison.name.c_str(), our, their, their / our);
        }
    }

private:
    std::map<std::string, std::vector<double>> m_values;
};
} // namespace

void compare(const std::string& name, const Workload& ours, const Workload& yardstick, int repetitions)
{
    add({name, false}, ours, yardstick, repetitions);
}

void compareBytes(const std::string& name, const Workload& ours, const Workload& yardstick)
{
    add({name, true}, ours, yardstick, 7);
}

void setBytes(benchmark::State& state, double bytes)
{
    state.counters[bytesCounter] = bytes;
}

double allocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

void verify(bool isRight, const char* what)
{
    if (isRight)
        return;
    std::fprintf(stderr, "a workload went wrong: %s\n", what);
    std::exit(EXIT_FAILURE);
}

void runComparisons(int argc, char** argv)
{
    std::vector<char*> arguments(argv, argv + argc);
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    arguments.insert(arguments.begin() + 1, interleaving.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    verify(!benchmark::ReportUnrecognizedArguments(count, arguments.data()), "unknown arguments");
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    collector.print();
}
} // namespace velmbench
