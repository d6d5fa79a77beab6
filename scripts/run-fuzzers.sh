#!/usr/bin/env bash
# Builds the libFuzzer targets of fuzz/ with clang (address and undefined-behaviour sanitizers)
# and runs each one for FUZZ_TIME seconds from its committed seeds in fuzz/corpus/<name>.
# New inputs go to <build folder>/corpus/<name>, which is not committed; a crash, a sanitizer
# report, a leak, an input slower than one second or a broken invariant stops that target,
# leaves the input in <build folder>/artifacts/ and makes the script fail after all have run.
#
# Usage: scripts/run-fuzzers.sh [build folder]   (default build-fuzz; FUZZ_TIME default 45,
# JOBS default the number of cores)
set -euo pipefail
cd "$(dirname "$0")/.."

build=${1:-build-fuzz}
time=${FUZZ_TIME:-45}
jobs=${JOBS:-$(nproc)}
targets=(calc number_text project_file)

scripts/install-deps.sh
if [ ! -f "$build/build.ninja" ]; then
    CXX=clang++ cmake -S fuzz -B "$build" -G Ninja
fi
cmake --build "$build" -j "$jobs"

mkdir -p "$build/artifacts" "$build/logs"
failed=()
summary=()
for name in "${targets[@]}"; do
    mkdir -p "$build/corpus/$name"
    before=$(find "$build/corpus/$name" fuzz/corpus/"$name" -type f | wc -l)
    log="$build/logs/$name.log"
    echo "== ${name}_fuzzer for ${time} s"
    status=0
    "$build/${name}_fuzzer" "$build/corpus/$name" "fuzz/corpus/$name" \
        -max_total_time="$time" -timeout=1 -rss_limit_mb=2048 -detect_leaks=1 \
        -artifact_prefix="$build/artifacts/$name-" >"$log" 2>&1 || status=$?
    runs=$(sed -n 's/^Done \([0-9]*\) runs.*/\1/p' "$log")
    after=$(find "$build/corpus/$name" fuzz/corpus/"$name" -type f | wc -l)
    if [ "$status" -ne 0 ]; then
        failed+=("$name")
        grep -E "ERROR|SUMMARY|invariant broken|Test unit written" "$log" || tail -n 20 "$log"
        summary+=("$name: FAILED (exit $status), see $log")
    else
        summary+=("$name: ${runs:-?} runs, corpus $before -> $after inputs")
    fi
done

echo "== fuzzing summary (${time} s per target)"
printf '%s\n' "${summary[@]}"
if [ ${#failed[@]} -ne 0 ]; then
    echo "fuzzing found faults in: ${failed[*]}" >&2
    exit 1
fi
