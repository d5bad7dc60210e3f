/// Ratios of benchmarks that ran side by side, with the targets that they are held against.
#pragma once

#include <string>

/// One figure: the time of `measured` over that of `floor`, round by round of one run.
struct Ratio {
    std::string name;
    std::string measured;  ///< the whole name of a benchmark without arguments
    std::string floor;
    double must;       ///< no more than this; 0: only reported
    double aim;        ///< 0: none
    double scale = 1;  ///< the ratio is multiplied by this, for floors of another size
};

/// Adds a row to the table of the run. Call it where benchmarks are registered.
void addRatio(Ratio ratio);

/// Measures what the ratios name, as far as the filter of the arguments takes one of the two, and
/// prints the table. Benchmarks that share a ratio, directly or through others, are measured in
/// rounds, one behind the other in each, in CPU time of their thread; a figure is the median of the
/// rounds' ratios. With the argument `--alone`, what the filter takes runs without rounds and
/// ratios, to be looked at by a profiler.
/// @return what main returns: a failure if a must is missed, or a benchmark failed
int runBenchmarks(int argc, char** argv);

/// Prints the head of a table of figures.
void printHead(const char* title);

/// Prints a row of it.
/// @return whether the figure is no more than its must
bool printFigure(const std::string& name, double figure, double must, double aim,
                 const std::string& spread = {});
