#!/usr/bin/env bash
# Runs every libFuzzer target for SECONDS each (default 60).
# Usage: scripts/fuzz.sh [SECONDS]
#
# A target fuzz/NAME_fuzz.cc starts from the seed files in fuzz/corpus/NAME/
# and grows its own corpus in build/fuzz/corpus/NAME/ (the seeds in the
# repository stay as they are). Crashing inputs land in
# build/fuzz/crashes/NAME/; the script ends non-zero if any target found one.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
seconds="${1:-60}"
zel_configure fuzz
cmake --build --preset fuzz -j "$(zel_jobs)"

status=0
for exe in "$ZEL_ROOT"/build/fuzz/bin/*_fuzz; do
  target="$(basename "$exe")"
  name="${target%_fuzz}"
  seeds="$ZEL_ROOT/fuzz/corpus/$name"
  grown="$ZEL_ROOT/build/fuzz/corpus/$name"
  crashes="$ZEL_ROOT/build/fuzz/crashes/$name"
  mkdir -p "$grown" "$crashes"
  [ -d "$seeds" ] || seeds=""
  echo "== $target for ${seconds}s"
  if ! "$exe" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
      -print_final_stats=1 -artifact_prefix="$crashes/" \
      "$grown" ${seeds:+"$seeds"} 2>"$ZEL_ROOT/build/fuzz/$name.log"; then
    echo "   FOUND A FAULT: see build/fuzz/$name.log and $crashes/"
    status=1
  fi
  grep -E '^stat::(number_of_executed_units|peak_rss_mb)' \
    "$ZEL_ROOT/build/fuzz/$name.log" | sed 's/^/   /'
done
exit "$status"
