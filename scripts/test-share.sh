#!/usr/bin/env bash
# The share of test code in the repository: non-blank, non-comment lines of the committed C++
# files (.cpp, .h, .hpp, .cc), tests being everything under tests/ and fuzz/. The house rule
# keeps it between a quarter and a third of all C++ lines.
# Usage: scripts/test-share.sh
set -euo pipefail
cd "$(dirname "$0")/.."

count() {
    # Lines that are neither blank nor a whole-line // comment.
    xargs -r -d '\n' cat -- | grep -c -v -E '^\s*(//.*)?$' || true
}

files=$(git ls-files | grep -E '\.(cpp|h|hpp|cc)$')
all=$(printf '%s\n' "$files" | count)
tests=$(printf '%s\n' "$files" | grep -E '^(tests|fuzz)/' | count)
percent=$(awk -v t="$tests" -v a="$all" 'BEGIN { printf "%.1f", a ? 100 * t / a : 0 }')
echo "tests: $tests"
echo "all:   $all"
echo "share: $percent%"
