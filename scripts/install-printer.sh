#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the Vellumio printer into this system's CUPS, or removes it. Run as root.
#   scripts/install-printer.sh [--build DIR]   build (in DIR, default build) and install under /usr,
#                                              then make the spool and the queue with its policy
#   scripts/install-printer.sh --remove        remove the queue, its policy and the installed files
set -euo pipefail
cd "$(dirname "$0")/.."

prefix=/usr
record=/var/lib/vellumio/installed-files
# The queue's own script, as the package's maintainer scripts run it.
queue_script=$prefix/libexec/vellumio/vellumio-queue

build=build
remove=false
while [ $# -gt 0 ]; do
    case $1 in
    --remove) remove=true ;;
    --build) build=${2:?--build needs a folder}; shift ;;
    -h | --help) sed -n '3,6p' "$0" | cut -c3-; exit 0 ;;
    *) echo "Unknown option: $1 (see --help)" >&2; exit 2 ;;
    esac
    shift
done
if [ "$(id -u)" -ne 0 ]; then
    echo "Run as root: the backend, the spool and the queue belong to the system." >&2
    exit 1
fi

if $remove; then
    [ -x "$queue_script" ] || queue_script=packaging/vellumio-queue
    "$queue_script" remove
    if [ -f "$record" ]; then
        while IFS= read -r file; do rm -f -- "$file"; done <"$record"
        rmdir --ignore-fail-on-non-empty "$prefix/libexec/vellumio" "$prefix/share/ppd/vellumio" \
            "$prefix/share/vellumio" 2>/dev/null || true
        rm -rf "$(dirname "$record")"
    fi
    echo "The Vellumio printer is removed."
    exit 0
fi

if ! command -v lpadmin >/dev/null; then
    echo "CUPS is not installed: apt-get install cups" >&2
    exit 1
fi
# Configured for /usr, so the autostart entry lands in /etc/xdg/autostart.
cmake -S . -B "$build" -DCMAKE_INSTALL_PREFIX="$prefix" >/dev/null
cmake --build "$build" -j"$(nproc)"
cmake --install "$build"
mkdir -p "$(dirname "$record")"
cp "$build/install_manifest.txt" "$record"
"$queue_script" add "$prefix"
echo "Its agent starts with each desktop session; to use it now, run vellumio-agent in your session."
