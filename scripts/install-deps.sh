#!/usr/bin/env bash
# Installs what building, testing and running VynUI needs on Debian bookworm, and nothing
# that is already there. Packages named as arguments are installed too (scripts/fuzz.sh
# adds clang and its runtime libraries this way). Needs root (or sudo).
set -euo pipefail

packages=(
    cmake g++ make pkg-config clang-format
    qt6-base-dev qt6-declarative-dev qt6-declarative-dev-tools qt6-qpa-plugins
    qml6-module-qtqml qml6-module-qtqml-workerscript qml6-module-qtqml-models
    qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-templates
    qml6-module-qtquick-layouts qml6-module-qtquick-window qml6-module-qtquick-shapes
    qml6-module-qtquick-dialogs qml6-module-qttest
    # Qt's SVG image-format plugin: the module's icons are SVG files drawn by Qt Quick.
    libqt6svg6
    libgl-dev fonts-dejavu-core
    "$@"
)
# The module's own fonts (Inter) are committed under src/qml/Font: no font package is needed
# to build or run it.

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
