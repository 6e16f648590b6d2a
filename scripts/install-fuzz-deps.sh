#!/usr/bin/env bash
# Installs what the fuzzers need on top of scripts/install-deps.sh: clang and its runtime
# libraries (libFuzzer and the sanitizers), on Debian bookworm. Needs root (or sudo).
set -euo pipefail

packages=(clang-14 libclang-rt-14-dev)

missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$package")
    fi
done

if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

echo "Installing: ${missing[*]}"
sudo=""
if [ "$(id -u)" -ne 0 ]; then
    sudo="sudo"
fi
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
