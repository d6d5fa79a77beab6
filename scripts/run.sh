#!/usr/bin/env bash
# Runs the program's main job from the build folder given as the first argument.
set -euo pipefail
build="${1:-build}"
example="$build/bin/Examples/Roadside swale - required length.swl"
echo "Report of the example project: $example"
echo
exec "$build/bin/swale-calc" "$example"
