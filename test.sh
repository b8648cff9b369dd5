#!/usr/bin/env bash
# Installs the dependencies, builds, and runs every test headless.
set -euo pipefail
cd "$(dirname "$0")"
bash tools/install-deps.sh
bash tools/build.sh build
export QT_QPA_PLATFORM=offscreen
ctest --test-dir build --output-on-failure -j"$(nproc)"
