#!/usr/bin/env bash
# Installs what is missing, builds everything with warnings as errors, runs every test,
# then builds again with AddressSanitizer and UndefinedBehaviorSanitizer and runs every test
# in that build too (rendering every gallery page in both styles with leak detection on), and
# finally runs each fuzzer for a bounded time (scripts/fuzz.sh).
# Exits non-zero when anything fails.
#
#   bash scripts/test.sh              everything
#   VYNUI_SKIP_SANITIZE=1 bash scripts/test.sh   without the sanitizer build
#   VYNUI_SKIP_FUZZ=1 bash scripts/test.sh       without the fuzzers
set -euo pipefail
cd "$(dirname "$0")/.."

bash scripts/install-deps.sh

jobs=$(nproc 2>/dev/null || echo 2)
export QT_QPA_PLATFORM=offscreen

echo "== Format check"
bash scripts/check-format.sh

echo "== Build"
cmake -S . -B build -DVYNUI_WERROR=ON -DCMAKE_BUILD_TYPE=Debug
cmake --build build -j"$jobs"

echo "== Tests"
(cd build && ctest --output-on-failure -j"$jobs")

if [ "${VYNUI_SKIP_SANITIZE:-0}" != "1" ]; then
    echo "== Build with AddressSanitizer and UndefinedBehaviorSanitizer"
    cmake -S . -B build-sanitize -DVYNUI_WERROR=ON -DVYNUI_SANITIZE=ON \
        -DCMAKE_BUILD_TYPE=Debug -DVYNUI_BUILD_BENCHMARKS=OFF
    cmake --build build-sanitize -j"$jobs"

    echo "== Tests under the sanitizers"
    (cd build-sanitize && ctest --output-on-failure -j"$jobs")
fi

if [ "${VYNUI_SKIP_FUZZ:-0}" != "1" ]; then
    echo "== Fuzzers"
    bash scripts/fuzz.sh
fi
