#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the Vellumio printer into this system's CUPS, or removes it. Run as root.
#   scripts/install-printer.sh [--build DIR]   build (in DIR, default build) and install under /usr,
#                                              create the spool, add the queue's policy, create the queue
#   scripts/install-printer.sh --remove        remove the queue, its policy and the installed files
set -euo pipefail
cd "$(dirname "$0")/.."

queue=Vellumio
prefix=/usr
cupsd_conf=/etc/cups/cupsd.conf
spool=/var/spool/vellumio
record=/var/lib/vellumio/installed-files
begin='# BEGIN Vellumio queue policy'
end='# END Vellumio queue policy'

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

scheduler_running() { lpstat -r 2>/dev/null | grep -q 'is running'; }

restart_cups() {
    if [ -d /run/systemd/system ]; then
        systemctl restart cups
    else
        service cups restart
    fi
    for _ in $(seq 50); do
        scheduler_running && return 0
        sleep 0.2
    done
    echo "CUPS does not answer after its restart: see /var/log/cups/error_log." >&2
    return 1
}

drop_policy() { sed -i "/^$begin\$/,/^$end\$/d" "$cupsd_conf"; }

if $remove; then
    if scheduler_running && lpstat -p "$queue" >/dev/null 2>&1; then
        lpadmin -x "$queue"
    fi
    if grep -qx "$begin" "$cupsd_conf"; then
        drop_policy
        if scheduler_running; then restart_cups; fi
    fi
    if [ -f "$record" ]; then
        while IFS= read -r file; do rm -f -- "$file"; done <"$record"
        rmdir --ignore-fail-on-non-empty "$prefix/libexec/vellumio" "$prefix/share/ppd/vellumio" \
            "$prefix/share/vellumio" 2>/dev/null || true
        rm -rf /var/lib/vellumio
    fi
    if [ -d "$spool" ] && [ -n "$(find "$spool" -mindepth 3 -maxdepth 4 -name job.pdf -print -quit)" ]; then
        echo "Kept $spool: it still holds print jobs. Remove it by hand when they are not needed."
    else
        rm -rf "$spool"
    fi
    echo "The Vellumio printer is removed."
    exit 0
fi

if ! command -v lpadmin >/dev/null || [ ! -f "$cupsd_conf" ]; then
    echo "CUPS is not installed: apt-get install cups" >&2
    exit 1
fi
# Configured for /usr, so the autostart entry lands in /etc/xdg/autostart.
cmake -S . -B "$build" -DCMAKE_INSTALL_PREFIX="$prefix" >/dev/null
cmake --build "$build" -j"$(nproc)"
cmake --install "$build"
mkdir -p "$(dirname "$record")"
cp "$build/install_manifest.txt" "$record"

install -d -m 0711 -o root -g root "$spool"
[ -e "$spool/folders.stamp" ] || install -m 0644 -o root -g root /dev/null "$spool/folders.stamp"

drop_policy
{
    echo "$begin"
    grep -v '^# SPDX' "$prefix/share/vellumio/vellumio-policy.conf"
    echo "$end"
} >>"$cupsd_conf"
restart_cups
lpadmin -p "$queue" -E -v vellumio:/ -P "$prefix/share/ppd/vellumio/vellumio.ppd" \
    -D "Vellumio virtual printer" -o printer-is-shared=false -o printer-op-policy=vellumio \
    -o printer-error-policy=retry-job
echo "The Vellumio printer is installed as the queue $queue."
echo "Its agent starts with each desktop session; to use it now, run vellumio-agent in your session."
