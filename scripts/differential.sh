#!/usr/bin/env bash
# The differential test at full size: the calculation core against the frozen copy of its
# previous number reading, result display and normal-depth search, over COUNT generated projects
# (default 100000), then the display of every float in the fast formatter's range against printf.
# `make test` runs the same comparison over 3000 projects.
#
# Usage: scripts/differential.sh [build folder]   (default build; COUNT default 100000)
set -euo pipefail
cd "$(dirname "$0")/.."

build=${1:-build}
count=${COUNT:-100000}

if [ ! -f "$build/build.ninja" ]; then
    cmake -S . -B "$build" -G Ninja
fi
cmake --build "$build" --target calc_differential_tests
"$build/bin/calc_differential_tests" --count "$count" --all-floats
