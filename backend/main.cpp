// SPDX-License-Identifier: GPL-3.0-or-later
// The CUPS backend "vellumio": hands each job to its owner's spool folder, where the session agent
// shows the dialog and renders. Without arguments it names its device for `lpinfo -v`.
#include "backend/spoolwriter.h"

#include <cstdio>
#include <cstdlib>
#include <sys/stat.h>

int main(int argc, char *argv[])
{
    ::umask(077);
    if (argc == 1) {
        std::puts(Spool::deviceLine().c_str());
        return static_cast<int>(Spool::BackendStatus::Ok);
    }
    const std::optional<Spool::Arguments> arguments
        = Spool::parseArguments(std::vector<std::string>(argv + 1, argv + argc));
    if (!arguments) {
        std::fprintf(stderr, "Usage: %s job-id user title copies options [file]\n", argv[0]);
        return static_cast<int>(Spool::BackendStatus::Failed);
    }
    const Spool::Outcome outcome
        = Spool::spoolJob(*arguments, Spool::rootFolder(std::getenv(Spool::rootVariable)));
    std::fprintf(stderr, "%s\n", outcome.message.c_str());
    return static_cast<int>(outcome.status);
}
