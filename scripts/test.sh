#!/usr/bin/env bash
# Builds ZEL and runs every test. Usage: scripts/test.sh [PRESET] (default dev;
# asan runs the same tests under AddressSanitizer and UBSan).
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
preset="${1:-dev}"
zel_configure "$preset"
cmake --build --preset "$preset" -j "$(zel_jobs)"
ctest --preset "$preset" -j "$(zel_jobs)"
