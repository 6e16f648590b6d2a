#!/usr/bin/env bash
# Installs what is missing, builds the gallery and runs it. Without a display it renders
# offscreen to gallery-dark.png and gallery-light.png instead of opening a window.
#
#   bash scripts/gallery.sh [gallery options, e.g. --page Controls --appearance light]
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh

cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build build -j"$(nproc 2>/dev/null || echo 2)" --target vynui-gallery VynUIPlugin

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
    # Headless: picture the controls page unless another page is asked for.
    if [ $# -eq 0 ]; then
        set -- --page Controls
    fi
    ./build/bin/vynui-gallery --appearance dark --screenshot gallery-dark.png "$@"
    ./build/bin/vynui-gallery --appearance light --screenshot gallery-light.png "$@"
else
    exec ./build/bin/vynui-gallery "$@"
fi
