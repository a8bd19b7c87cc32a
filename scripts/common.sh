# Shared by the build scripts: installs what is missing and configures a preset.
# Usage (sourced): zel_configure PRESET
set -euo pipefail
ZEL_ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"

zel_configure() {
  local preset="$1"
  "$ZEL_ROOT/scripts/install-deps.sh"
  local records="$ZEL_ROOT/../shared/dbase"
  if [ -z "${ZEL_RECORDS_DIR:-}" ] && [ -d "$records" ]; then
    export ZEL_RECORDS_DIR="$(cd "$records" && pwd)"
  fi
  cmake --preset "$preset" -S "$ZEL_ROOT" -G Ninja >/dev/null
}

zel_jobs() { nproc 2>/dev/null || echo 2; }
