#!/usr/bin/env bash
# Builds the libFuzzer targets with clang in build-fuzz and runs each one for a bounded time,
# starting from its committed seeds in fuzz/corpus/<name>/. Exits non-zero as soon as a
# fuzzer finds a crash, a sanitizer error or a broken rule; the input that did it is left in
# build-fuzz/artifacts/.
#
#   bash scripts/fuzz.sh                      every fuzzer, 25 s each
#   VYNUI_FUZZ_SECONDS=300 bash scripts/fuzz.sh viewutils colors
set -euo pipefail
cd "$(dirname "$0")/.."

# clang-14 builds the fuzzers; libclang-rt-14-dev holds libFuzzer and the sanitizers.
bash scripts/install-deps.sh clang-14 libclang-rt-14-dev

jobs=$(nproc 2>/dev/null || echo 2)
seconds=${VYNUI_FUZZ_SECONDS:-25}
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    targets=(viewutils labeloptimizer colors scripts)
fi

launcher=()
if command -v ccache >/dev/null 2>&1; then
    launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
CC=clang-14 CXX=clang++-14 cmake -S . -B build-fuzz -DVYNUI_WERROR=ON -DCMAKE_BUILD_TYPE=Debug \
    -DVYNUI_BUILD_FUZZERS=ON -DVYNUI_BUILD_TESTS=OFF -DVYNUI_BUILD_GALLERY=OFF \
    -DVYNUI_BUILD_BENCHMARKS=OFF "${launcher[@]}"
cmake --build build-fuzz -j"$jobs" --target "${targets[@]/#/fuzz_}"

export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS=abort_on_error=1
export UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1
mkdir -p build-fuzz/artifacts
for target in "${targets[@]}"; do
    echo "== Fuzzing $target for ${seconds} s"
    # New inputs go to the scratch corpus (the first directory), never to the committed seeds.
    mkdir -p "build-fuzz/corpus/$target"
    "build-fuzz/bin/fuzz_$target" "build-fuzz/corpus/$target" "fuzz/corpus/$target" \
        -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
        -artifact_prefix="build-fuzz/artifacts/$target-"
done
