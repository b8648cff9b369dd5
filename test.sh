#!/usr/bin/env bash
# Installs the dependencies, builds, and runs every test headless.
#   ./test.sh             the normal build in ./build
#   ./test.sh --sanitize  everything built with AddressSanitizer (leaks included) and
#                         UndefinedBehaviorSanitizer in ./build-sanitize, and the tests run there
set -euo pipefail
cd "$(dirname "$0")"
SANITIZE=0
for arg in "$@"; do
    case "$arg" in
    --sanitize) SANITIZE=1 ;;
    *)
        echo "usage: ./test.sh [--sanitize]" >&2
        exit 2
        ;;
    esac
done
bash tools/install-deps.sh
export QT_QPA_PLATFORM=offscreen
if [ "$SANITIZE" -eq 1 ]; then
    cmake -S . -B build-sanitize -DCMAKE_BUILD_TYPE=RelWithDebInfo -DMQ48_SANITIZE=ON
    cmake --build build-sanitize -j"$(nproc)"
    ctest --test-dir build-sanitize --output-on-failure -j"$(nproc)"
else
    bash tools/build.sh build
    ctest --test-dir build --output-on-failure -j"$(nproc)"
fi
