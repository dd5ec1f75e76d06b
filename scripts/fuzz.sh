#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the libFuzzer targets with clang (address and undefined-behaviour sanitizers over the whole
# program) in build-fuzz and runs each from its seed corpus for a bounded time. Any crash, leak,
# sanitizer report or broken rule fails the script. FUZZ_SECONDS sets the time per target (60).
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh clang libclang-rt-14-dev
seconds="${FUZZ_SECONDS:-60}"

cmake --preset fuzzing >/dev/null
cmake --build build-fuzz --target fuzz_settings_file fuzz_paths_passwords -j"$(nproc)"

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1"
export LSAN_OPTIONS="suppressions=$PWD/scripts/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
export QT_QPA_PLATFORM=offscreen
export TMPDIR="$work"

status=0
for pair in fuzz_settings_file:settings fuzz_paths_passwords:paths; do
    target="${pair%%:*}"
    corpus="${pair##*:}"
    mkdir -p "$work/$corpus"
    log="$work/$target.log"
    # New inputs go to the scratch folder; the seed corpus in the tree is only read.
    if build-fuzz/fuzz/"$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=4096 \
        -print_final_stats=1 -artifact_prefix="$work/$target-" \
        "$work/$corpus" "fuzz/corpus/$corpus" >"$log" 2>&1; then
        result=ok
    else
        result=FAILED
        status=1
        tail -n 60 "$log" >&2
        for artifact in "$work/$target"-*; do
            [ -e "$artifact" ] && cp "$artifact" . && echo "kept the failing input as ./$(basename "$artifact")" >&2
        done
    fi
    runs="$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -n 1)"
    echo "$target: ${runs:-0} runs in ${seconds} s, findings: $([ "$result" = ok ] && echo 0 || echo 1), $result"
done
exit "$status"
