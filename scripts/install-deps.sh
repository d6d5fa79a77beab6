#!/usr/bin/env bash
# Installs the Debian packages the build, the tests and the window need, when any is missing.
# Safe to run again: it does nothing when everything is already there.
set -euo pipefail

packages=(
    cmake ninja-build g++ make pkg-config
    qt6-base-dev qt6-svg-dev libqt6svg6 qt6-image-formats-plugins
    qt6-charts-dev libqt6opengl6-dev
    libgtest-dev libgmock-dev libbenchmark-dev
    fonts-dejavu-core fonts-liberation2
    xvfb xauth poppler-utils openbox xdotool
    clang-format-14 dpkg-dev file
    clang libclang-rt-14-dev
)

missing=()
for p in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$p")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing missing packages: ${missing[*]}"
sudo=""
if [ "$(id -u)" -ne 0 ]; then
    sudo="sudo"
fi
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
