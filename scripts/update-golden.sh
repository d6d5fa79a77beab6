#!/usr/bin/env bash
# Writes the expected outputs of the golden tests anew: every example project through
# `swale-calc --json`. Check each changed file by eye (git diff) before committing it.
set -euo pipefail
build="${1:-build}"
here="$(cd "$(dirname "$0")/.." && pwd)"
program="$build/bin/swale-calc"
[ -x "$program" ] || { echo "build swale-calc first: $program is missing" >&2; exit 1; }
for example in "$here"/examples/*.swl; do
    name="$(basename "$example" .swl)"
    "$program" --json "$example" > "$here/tests/golden/$name.json"
    echo "wrote tests/golden/$name.json"
done
