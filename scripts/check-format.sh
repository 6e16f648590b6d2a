#!/usr/bin/env bash
# Fails when a C++ file differs from what the repository's .clang-format asks for.
set -euo pipefail
cd "$(dirname "$0")/.."
files=$(git ls-files '*.h' '*.cpp' 2>/dev/null || find . -name '*.h' -o -name '*.cpp' | grep -v '^./build')
if [ -z "$files" ]; then
    exit 0
fi
# shellcheck disable=SC2086
clang-format --dry-run --Werror $files
