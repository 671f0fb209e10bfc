#!/usr/bin/env bash
# Builds LxComp and starts the demo host. Without a display it renders the gallery of PNG
# pictures of every dialog and control into gallery/ and says where.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake -S . -B build -G Ninja
cmake --build build --parallel "$(nproc)" --target lxdemo
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec build/apps/lxdemo/lxdemo
fi
build/apps/lxdemo/lxdemo --gallery "$PWD/gallery"
