#!/usr/bin/env bash
# Installs every Debian package ZEL needs to build, test and run.
# Idempotent: apt-get update runs only when something is missing.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config git
  qt6-base-dev qt6-svg-dev libqcustomplot-dev libqcustomplot2.1-qt6 libgl-dev
  qt6-base-dev-tools libqt6test6 fonts-dejavu-core
  libcli11-dev libgtest-dev libgmock-dev libbenchmark-dev
  clang libclang-rt-dev clang-format
  locales xvfb xauth
  desktop-file-utils libxml2-utils dpkg-dev file poppler-utils
)

sudo_cmd=()
if [ "$(id -u)" -ne 0 ]; then sudo_cmd=(sudo); fi

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  "${sudo_cmd[@]}" apt-get update -qq
  "${sudo_cmd[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq \
    --no-install-recommends "${missing[@]}"
fi

# The locale tests check that a German decimal comma never reaches a file.
if ! locale -a 2>/dev/null | grep -qi '^de_DE\.utf-\?8$'; then
  "${sudo_cmd[@]}" localedef -i de_DE -f UTF-8 de_DE.UTF-8 || \
    echo "note: could not generate de_DE.UTF-8; locale tests will be skipped"
fi
