#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the start-up benchmark in Release and runs it: fmtask against a window with one label
# (and a bare one), launched in turn in a German locale so that both load a translation, then
# loading and saving in process. Prints a Markdown table.
#   scripts/bench.sh              offscreen platform (no display needed)
#   scripts/bench.sh --xcb        on a virtual X server (xvfb-run), as a desktop would show it
# Further arguments go to the benchmark (--pairs N, --rounds N, --language en for no
# translation). BUILD_DIR sets the build folder.
set -euo pipefail
cd "$(dirname "$0")/.."

build="${BUILD_DIR:-build}"
xcb=no
if [ "${1:-}" = "--xcb" ]; then
    xcb=yes
    shift
fi

if [ "$xcb" = yes ]; then
    scripts/install-deps.sh xvfb xauth
else
    scripts/install-deps.sh
fi
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$build" --target fmtask_bench -j"$(nproc)"

if [ "$xcb" = yes ]; then
    exec xvfb-run -a -s "-screen 0 1280x1024x24" "$build/bench/fmtask_bench" --platform xcb "$@"
fi
exec "$build/bench/fmtask_bench" --platform offscreen "$@"
