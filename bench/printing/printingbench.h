// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_PRINTINGBENCH_H
#define VELLUMIO_PRINTINGBENCH_H

#include <QByteArray>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include <unistd.h>

// What the printing benchmarks share: their rounds and their medians.
namespace PrintingBench {

inline double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    return values.empty()   ? 0
        : values.size() % 2 ? values[middle]
                            : (values[middle - 1] + values[middle]) / 2;
}

// The rounds of "--rounds N", else `fallback`; 0 when not run as root, which every benchmark
// here needs (a private scheduler, throwaway users), having said so.
inline int rounds(int argc, char *argv[], int fallback, const char *needs)
{
    if (::geteuid() != 0) {
        std::fprintf(stderr, "Run as root: %s.\n", needs);
        return 0;
    }
    return argc > 2 && QByteArray(argv[1]) == "--rounds" ? std::max(1, std::atoi(argv[2]))
                                                         : fallback;
}

} // namespace PrintingBench

#endif // VELLUMIO_PRINTINGBENCH_H
