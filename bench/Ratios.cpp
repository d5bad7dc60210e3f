#include "bench/Ratios.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <utility>
#include <vector>

namespace {

std::vector<Ratio>& ratios() {
    static std::vector<Ratio> all;
    return all;
}

/// Prints as the console does, and keeps the medians.
class Reporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median")
                m_medians[run.run_name.str()] =
                    run.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
        ConsoleReporter::ReportRuns(runs);
    }

    void printRatios() const {
        std::printf("\n%-52s %8s %8s %8s\n", "ratio of medians", "ratio", "must", "aim");
        for (const Ratio& ratio : ratios()) {
            const auto measured = m_medians.find(ratio.measured);
            const auto floor = m_medians.find(ratio.floor);
            if (measured == m_medians.end() || floor == m_medians.end()) continue;
            std::printf("%-52s %8.2f", ratio.name.c_str(),
                        measured->second / floor->second * ratio.scale);
            if (ratio.must != 0)
                std::printf(" %8.2f %8.2f\n", ratio.must, ratio.aim);
            else
                std::printf("\n");
        }
    }

private:
    std::map<std::string, double> m_medians;  // in seconds
};

}  // namespace

bool addRatio(Ratio ratio) {
    ratios().push_back(std::move(ratio));
    return true;
}

int runBenchmarks(int argc, char** argv) {
    // What stands later wins, so the caller's arguments do.
    char repetitions[] = "--benchmark_repetitions=9";
    char shuffled[] = "--benchmark_enable_random_interleaving=true";
    char aggregates[] = "--benchmark_report_aggregates_only=true";
    char shortest[] = "--benchmark_min_time=0.05";
    std::vector<char*> arguments = {argv[0], repetitions, shuffled, aggregates, shortest};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 1;

    Reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printRatios();
    return 0;
}
