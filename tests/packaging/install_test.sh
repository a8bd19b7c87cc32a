#!/usr/bin/env bash
# Installs the build into a temporary prefix and checks the tree: the
# programs run from there, the desktop entry and the MIME type are valid, the
# man pages exist, and the Debian package lists its dependencies.
# Usage: install_test.sh BUILD_DIR
set -euo pipefail
build="$1"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
prefix="$work/prefix"
cmake --install "$build" --prefix "$prefix" >/dev/null

fail() { echo "FAIL: $*" >&2; exit 1; }
for f in bin/zel bin/zel-cli share/applications/zel.desktop \
         share/mime/packages/zel.xml share/man/man1/zel.1 \
         share/man/man1/zel-cli.1 share/icons/hicolor/scalable/apps/zel.svg \
         share/icons/hicolor/scalable/mimetypes/application-x-zel.svg; do
  [ -e "$prefix/$f" ] || fail "missing $f"
done
for size in 16 22 24 32 48 64 128 256; do
  [ -s "$prefix/share/icons/hicolor/${size}x${size}/apps/zel.png" ] ||
    fail "missing ${size}px icon"
done

desktop-file-validate "$prefix/share/applications/zel.desktop" ||
  fail "desktop entry"
xmllint --noout "$prefix/share/mime/packages/zel.xml" || fail "MIME XML"
grep -q 'glob pattern="\*.zel"' "$prefix/share/mime/packages/zel.xml" ||
  fail "MIME glob"
grep -q '^\.TH ZEL-CLI 1' "$prefix/share/man/man1/zel-cli.1" || fail "man"
grep -q 'design kds2019' "$prefix/share/man/man1/zel-cli.1" ||
  fail "man page without the design codes"

# The installed programs work from their new place.
cd "$work"
"$prefix/bin/zel-cli" --version | grep -q '^zel-cli ' || fail "version"
"$prefix/bin/zel-cli" design kds2019 -o x.zel || fail "zel-cli design"
QT_QPA_PLATFORM=offscreen "$prefix/bin/zel" --export x.zel x.png ||
  fail "zel --export"
[ "$(head -c 4 x.png | tail -c 3)" = "PNG" ] || fail "not a PNG"
# With no dbase/ beside it, the program takes the catalog's records from the
# installed data folder (here a small stand-in record).
[ ! -e "$prefix/bin/dbase" ] || fail "records installed beside the program"
mkdir -p "$prefix/share/zel/dbase"
printf '0.0, 0.0\n0.02, 0.5\n0.04, -0.25\n0.06, 0.0\n' \
  >"$prefix/share/zel/dbase/Elcent_h.dbs"
"$prefix/bin/zel-cli" record 1 -o r.zel | grep -q '0.5000(g)' ||
  fail "zel-cli record 1 from the installed records"

# The package of the same tree names the libraries it needs.
cpack -G DEB --config "$build/CPackConfig.cmake" -B "$work/package" \
  >/dev/null || fail "cpack"
deb=$(ls "$work"/package/*.deb)
depends=$(dpkg-deb -f "$deb" Depends)
for lib in libqt6widgets6 libc6 qt6-qpa-plugins; do
  grep -q "$lib" <<<"$depends" || fail "Depends lacks $lib: $depends"
done
contents=$(dpkg-deb -c "$deb")
grep -q "/usr/bin/zel-cli$" <<<"$contents" || fail "package contents"
echo "install tree and package OK"
