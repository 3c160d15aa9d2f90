// A measure beside the cost of what it cannot avoid, in the same run: the ratio of their medians, against a limit.
#pragma once

#include <span>

struct Limite {
    const char* mesure;   ///< name of a benchmark
    const char* plancher; ///< name of the benchmark that it is compared with
    double rapport;       ///< highest ratio of the two
    double echelle = 1.0; ///< units of work of the measure for one unit of the floor
};

/// Runs the benchmarks, prints the ratios, and tells whether all are within their limits. Without arguments of its own
/// the run repeats every benchmark in random order, so that a busy machine spoils all alike.
/// @return exit status of the program: 0 all within their limits, 1 not
int MesureEtCompare(int argc, char** argv, std::span<const Limite> limites);
