#include "bench/Ratios.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <ctime>
#include <map>
#include <optional>
#include <regex>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

namespace {

/// How many rounds a group gets, and after how much time of the processor no other begins: when
/// something must be met, and when all is only reported.
constexpr std::size_t fewestRounds = 5;
constexpr std::size_t mostRounds = 101;
constexpr double secondsOfMust = 10;
constexpr double secondsOfReport = 3;

std::vector<Ratio>& ratios() {
    static std::vector<Ratio> all;
    return all;
}

double processorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

/// Takes the one result of one benchmark.
class Taker : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.error_occurred)
                std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(),
                             run.error_message.c_str());
            else
                m_seconds =
                    run.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
        }
    }
    std::optional<double> seconds() const { return m_seconds; }

private:
    std::optional<double> m_seconds;
};

/// The time of one turn of a benchmark. Nothing if it failed, or was not to run.
std::optional<double> measure(const std::string& name) {
    Taker taker;
    benchmark::RunSpecifiedBenchmarks(&taker, '^' + name + '$');
    return taker.seconds();
}

/// Benchmarks that are measured in the same rounds.
struct Group {
    std::set<std::string> names;
    std::vector<const Ratio*> rows;
};

/// The ratios that the filter takes, in groups that have no benchmark in common.
std::vector<Group> groups(const std::regex& filter) {
    std::vector<Group> all;
    for (const Ratio& ratio : ratios()) {
        if (!std::regex_search(ratio.measured, filter) && !std::regex_search(ratio.floor, filter))
            continue;
        Group group{{ratio.measured, ratio.floor}, {}};
        for (auto other = all.begin(); other != all.end();) {
            if (other->names.count(ratio.measured) + other->names.count(ratio.floor) == 0) {
                ++other;
                continue;
            }
            group.names.merge(other->names);
            group.rows.insert(group.rows.end(), other->rows.begin(), other->rows.end());
            other = all.erase(other);
        }
        group.rows.push_back(&ratio);
        all.push_back(std::move(group));
    }
    return all;
}

/// The first quartile, the median and the third.
std::array<double, 3> quartiles(std::vector<double> figures) {
    std::sort(figures.begin(), figures.end());
    const auto at = [&figures](double part) {
        const double place = part * static_cast<double>(figures.size() - 1);
        const auto below = static_cast<std::size_t>(place);
        const std::size_t above = std::min(below + 1, figures.size() - 1);
        return figures[below] +
               (place - static_cast<double>(below)) * (figures[above] - figures[below]);
    };
    return {at(0.25), at(0.5), at(0.75)};
}

std::string formatted(const char* form, double first, double second) {
    char text[64];
    std::snprintf(text, sizeof text, form, first, second);
    return text;
}

/// Measures a group and prints its rows.
/// @return whether all were measured and no must is missed
bool run(const Group& group) {
    std::vector<std::string> order(group.names.begin(), group.names.end());
    std::map<std::string, std::vector<double>> times;
    const bool hasMust = std::any_of(group.rows.begin(), group.rows.end(),
                                     [](const Ratio* row) { return row->must != 0; });
    const double end = processorSeconds() + (hasMust ? secondsOfMust : secondsOfReport);
    for (std::size_t round = 0; round != mostRounds; ++round) {
        if (round >= fewestRounds && processorSeconds() > end) break;
        for (const std::string& name : order) {
            const std::optional<double> seconds = measure(name);
            if (!seconds) return false;
            times[name].push_back(*seconds);
        }
        // What stood behind the other stands before it next.
        std::reverse(order.begin(), order.end());
    }

    bool isWell = true;
    for (const Ratio* const ratio : group.rows) {
        const std::vector<double>& measured = times[ratio->measured];
        const std::vector<double>& floor = times[ratio->floor];
        std::vector<double> figures;
        for (std::size_t round = 0; round != measured.size(); ++round)
            figures.push_back(measured[round] / floor[round] * ratio->scale);
        const auto [first, median, third] = quartiles(figures);
        std::string spread = formatted("%.2f-%.2f", first, third);
        spread += formatted("  %10.3f ms %10.3f ms", quartiles(measured)[1] * 1e3,
                            quartiles(floor)[1] * 1e3);
        spread += "  " + std::to_string(figures.size()) + " rounds";
        if (!printFigure(ratio->name, median, ratio->must, ratio->aim, spread)) isWell = false;
    }
    return isWell;
}

}  // namespace

void addRatio(Ratio ratio) {
    ratios().push_back(std::move(ratio));
}

void printHead(const char* title) {
    std::printf("%-52s %6s %5s %5s  quartiles, medians of the two\n", title, "ratio", "must",
                "aim");
}

bool printFigure(const std::string& name, double figure, double must, double aim,
                 const std::string& spread) {
    const auto target = [](double value) {
        return value != 0 ? formatted("%5.2f", value, 0) : std::string(5, ' ');
    };
    const bool isMissed = must != 0 && figure > must;
    std::printf("%-52s %6.2f %s %s  %s%s\n", name.c_str(), figure, target(must).c_str(),
                target(aim).c_str(), spread.c_str(), isMissed ? "  missed" : "");
    std::fflush(stdout);
    return !isMissed;
}

int runBenchmarks(int argc, char** argv) {
    // What stands later wins, so the caller's arguments do.
    char shortest[] = "--benchmark_min_time=0.02";
    std::vector<char*> arguments = {argv[0], shortest};
    bool isAlone = false;
    for (int i = 1; i != argc; ++i) {
        if (std::string_view(argv[i]) == "--alone")
            isAlone = true;
        else
            arguments.push_back(argv[i]);
    }
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 1;

    if (isAlone) {
        benchmark::RunSpecifiedBenchmarks();
        return 0;
    }
    printHead(argv[0]);
    bool isWell = true;
    for (const Group& group : groups(std::regex(benchmark::GetBenchmarkFilter())))
        if (!run(group)) isWell = false;
    return isWell ? 0 : 1;
}
