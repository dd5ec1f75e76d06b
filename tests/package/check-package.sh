#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the Debian package from a finished build folder, unpacks it into a folder of its own and
# checks what a user would install: every file in its place with its owner and mode, the
# dependencies, and maintainer scripts that make and remove the queue.
#   check-package.sh BUILD_DIR
set -uo pipefail
build=$(cd "${1:?build folder}" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

passed=0
failed=0
check() { # name, then the command that must succeed
    local name=$1
    shift
    if "$@"; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        echo "FAIL: $name"
    fi
}

(cd "$build" && cpack -G DEB -B "$work/out" >"$work/cpack.log" 2>&1) || { cat "$work/cpack.log"; exit 1; }
deb=$(ls "$work"/out/*.deb)
dpkg-deb -x "$deb" "$work/root"
dpkg-deb -e "$deb" "$work/control"
dpkg-deb -c "$deb" | awk '{print $1, $2, $6}' >"$work/list"

# mode owner path: the backend runs as root only while it belongs to root with mode 0700; the
# dialog offers DjVu because dxconv lies beside fmtask.
while read -r mode owner path; do
    check "$path is $mode $owner" grep -qx -- "$mode $owner ./$path" "$work/list"
done <<'LIST'
-rwx------ root/root usr/lib/cups/backend/vellumio
-rwxr-xr-x root/root usr/libexec/vellumio/fmtask
-rwxr-xr-x root/root usr/libexec/vellumio/dxconv
-rwxr-xr-x root/root usr/libexec/vellumio/vellumio-queue
-rwxr-xr-x root/root usr/bin/vellumio-agent
-rwxr-xr-x root/root usr/bin/vellumio-render
-rw-r--r-- root/root etc/xdg/autostart/vellumio-agent.desktop
-rw-r--r-- root/root usr/share/ppd/vellumio/vellumio.ppd
-rw-r--r-- root/root usr/share/vellumio/vellumio-policy.conf
LIST
check "nothing of the tests or benchmarks is packaged" \
    bash -c "! grep -Eq 'tst_|bench|probe|fuzz|stylepreview' '$work/list'"
for tool in ghostscript poppler-utils qpdf libtiff-tools netpbm libopenjp2-tools pdf2djvu cups libqt6widgets6; do
    check "depends on $tool" grep -Eq "^Depends:.*\b$tool\b" "$work/control/control"
done
for script in postinst prerm; do
    check "$script is executable" test -x "$work/control/$script"
    check "$script parses" sh -n "$work/control/$script"
done
check "postinst makes the queue" grep -q "vellumio-queue add" "$work/control/postinst"
check "prerm removes the queue" grep -q "vellumio-queue remove" "$work/control/prerm"
check "the queue script parses" sh -n "$work/root/usr/libexec/vellumio/vellumio-queue"
check "the autostart entry starts the agent" \
    grep -q '^Exec=vellumio-agent' "$work/root/etc/xdg/autostart/vellumio-agent.desktop"

echo "package: $(basename "$deb"), $(wc -l <"$work/list") entries"
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
