#!/usr/bin/env bash
# Installs the dependencies, builds, and launches MQ48 Pin Forge.
set -euo pipefail
cd "$(dirname "$0")"
bash tools/install-deps.sh
bash tools/build.sh build
exec ./build/bin/MQ48PinForge
