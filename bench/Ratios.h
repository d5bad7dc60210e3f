// Ratios of benchmarks that ran side by side, with the targets that they are held against.
#pragma once

#include <string>

/// One figure: the median time of `measured` over that of `floor`, both of the same run.
struct Ratio {
    std::string name;
    std::string measured;  ///< a benchmark's name, as Google Benchmark prints it
    std::string floor;
    double must;  ///< no more than this; 0: only reported
    double aim;
    double scale = 1;  ///< the ratio is multiplied by this, for floors of another size
};

/// Adds a row to the table that is printed behind the run. Call it where benchmarks are registered.
/// @return true, so that a namespace-scope variable can hold it
bool addRatio(Ratio ratio);

/// Runs the registered benchmarks, nine times each in a shuffled order unless the arguments say
/// otherwise, and prints the ratios of their medians.
int runBenchmarks(int argc, char** argv);
