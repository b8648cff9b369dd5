#!/usr/bin/env bash
# Configures and builds into ./build (or $1).
set -euo pipefail
cd "$(dirname "$0")/.."
BUILD_DIR="${1:-build}"
cmake -S . -B "$BUILD_DIR" -DCMAKE_BUILD_TYPE=Release
cmake --build "$BUILD_DIR" -j"$(nproc)"
