#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds fmtask and its tests with AddressSanitizer and UndefinedBehaviorSanitizer in build-asan
# and runs the whole test suite with leak detection on. Any sanitizer report fails the suite.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-deps.sh
cmake --preset sanitizers >/dev/null
cmake --build build-asan -j"$(nproc)"

# A report makes the test program exit non-zero, so CTest counts it as a failed test.
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1:strict_string_checks=1:detect_stack_use_after_return=1"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
export QT_QPA_PLATFORM=offscreen
# The end-to-end print tests and the package are left to the plain build: they spend their time in
# CUPS, Xvfb and the tools, and would double CI's time for little sanitized code.
ctest --test-dir build-asan --output-on-failure -j"$(nproc)" -LE "printing|package"
