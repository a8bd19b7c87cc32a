#!/usr/bin/env bash
# Builds the release preset and packs it as a Debian package
# (build/release/zel_VERSION_ARCH.deb), with the records of ZEL_RECORDS_DIR
# (../shared/dbase when it exists) in /usr/share/zel/dbase.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
zel_configure release
cmake --build --preset release -j "$(zel_jobs)"
cd "$ZEL_ROOT/build/release"
cpack -G DEB
ls -1 "$ZEL_ROOT"/build/release/*.deb
