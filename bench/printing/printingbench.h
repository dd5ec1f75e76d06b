// SPDX-License-Identifier: GPL-3.0-or-later
#ifndef VELLUMIO_PRINTINGBENCH_H
#define VELLUMIO_PRINTINGBENCH_H

#include "tests/printing/printharness.h"

#include <QByteArray>
#include <QTemporaryDir>

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

// One run's folder, which its throwaway user may pass through, the user, the spool root and a
// private scheduler started with the backend just built and the project's policy; `ready` when all
// of them are. Needs VELLUMIO_BACKEND and SOURCE_DIR.
struct Setup
{
    explicit Setup(char letter)
        : user((PrintHarness::removeStaleUsers(), ::chmod(QFile::encodeName(dir.path()), 0711),
                   letter),
            dir.path())
        , spool(path("spool"))
        , cups(path("cups"), spool)
        , ready(user.uid && PrintHarness::makeSpoolRoot(spool) && QDir().mkpath(cups.dir)
              && cups.start(VELLUMIO_BACKEND, SOURCE_DIR "/packaging/vellumio-policy.conf"))
    { }

    QString path(const QString &relative) const { return dir.filePath(relative); }

    QTemporaryDir dir;
    PrintHarness::ThrowawayUser user;
    QString spool;
    PrintHarness::PrivateCups cups;
    bool ready;
};

} // namespace PrintingBench

#endif // VELLUMIO_PRINTINGBENCH_H
