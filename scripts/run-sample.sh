#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what is missing, builds fmtask and opens the dialog for a sample print job, as the
# driver would: one argument, the proposed file name.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
cmake --preset release >/dev/null
cmake --build build --target fmtask -j"$(nproc)"

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    cat >&2 <<'MSG'
fmtask is built at build/fmtask, but this session has no display to show the dialog on.
Run it on a virtual X server instead, for example:
    sudo apt-get install -y xvfb && xvfb-run -a build/fmtask Document1
MSG
    exit 2
fi
exec build/fmtask "${1:-Document1}"
