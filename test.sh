#!/usr/bin/env bash
# Builds Orbidex and runs every test: the whole project with CTest, then the core's
# tests and the fuzz targets again under AddressSanitizer and UndefinedBehaviorSanitizer.
set -euo pipefail
cd "$(dirname "$0")"
source scripts/ensure-packages.sh
ensure_packages

jobs=${ORBIDEX_JOBS:-2}

# A compiler cache, when the machine has one, makes a second build of the same
# sources (another checkout of the project, say) nearly free.
launcher=()
if command -v ccache > /dev/null; then launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi

echo "== Build and test"
cmake -S . -B build/test -DCMAKE_BUILD_TYPE=RelWithDebInfo -DORBIDEX_WERROR=ON "${launcher[@]}"
cmake --build build/test -j"$jobs"
ctest --test-dir build/test -j"$jobs" --output-on-failure

echo "== Core tests under AddressSanitizer and UndefinedBehaviorSanitizer"
cmake -S . -B build/sanitize -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=clang++ \
  -DORBIDEX_WITH_QT=OFF -DORBIDEX_BENCH=OFF -DORBIDEX_SANITIZE=ON -DORBIDEX_FUZZ=ON -DORBIDEX_WERROR=ON "${launcher[@]}"
cmake --build build/sanitize -j"$jobs"
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
  ctest --test-dir build/sanitize -j"$jobs" --output-on-failure
