#!/usr/bin/env bash
# Builds ZEL and starts it. Arguments are passed to the program.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
zel_configure dev
cmake --build --preset dev -j "$(zel_jobs)"
bin="$ZEL_ROOT/build/dev/bin"
if [ -x "$bin/zel" ]; then
  exec "$bin/zel" "$@"
fi
exec "$bin/zel-cli" "${@:---help}"
