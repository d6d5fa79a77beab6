#!/usr/bin/env bash
# Starts the program from the build folder given as the first argument: the main window, untitled.
# A machine without a display cannot show the window; there the command-line calculator reports
# an example project instead.
set -euo pipefail
build="${1:-build}"
if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    exec "$build/bin/swale"
fi
example="$build/bin/Examples/Roadside swale - required length.swl"
echo "No display (neither DISPLAY nor WAYLAND_DISPLAY is set): the window cannot be shown."
echo "Report of the example project instead: $example"
echo
exec "$build/bin/swale-calc" "$example"
