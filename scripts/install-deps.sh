#!/usr/bin/env bash
# Installs every Debian package that building, testing, benchmarking and the demo host need.
# Idempotent and non-interactive; safe to run on a fresh machine and on one that has them.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config clang-format
  qt6-base-dev qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools qt6-svg-dev
  libqt6opengl6-dev libgl-dev libqscintilla2-qt6-dev
  libgtest-dev libgmock-dev libbenchmark-dev libmuparser-dev libboost-dev
  dbus dbus-x11 fonts-dejavu-core
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

SUDO=""
[ "$(id -u)" -ne 0 ] && SUDO="sudo"
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -q
$SUDO apt-get install -y -q --no-install-recommends "${missing[@]}"
