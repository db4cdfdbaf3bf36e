#!/usr/bin/env bash
# Builds the fuzz harnesses with clang and runs each for SECONDS.
#   fuzz/run.sh [-j JOBS] [SECONDS] [HARNESS...]
# SECONDS defaults to 30; no harness names run them all. JOBS harnesses run
# side by side (default 1). Each grows its corpus in build-fuzz/corpus/NAME
# from the seeds in fuzz/corpus/NAME; an input that breaks a harness is kept
# as build-fuzz/findings/NAME-*. Prints runs, coverage and findings per
# harness and fails when any harness found something.
# Extra libFuzzer flags can be given in FUZZ_FLAGS, another build folder in
# FUZZ_BUILD.
set -euo pipefail
cd "$(dirname "$0")/.."

jobs=1
if [[ ${1:-} == -j ]]; then
    jobs=$2
    shift 2
fi
seconds=${1:-30}
shift || true

build=${FUZZ_BUILD:-build-fuzz}
# A smaller quarantine than AddressSanitizer's 256 MB keeps two harnesses
# side by side well under a gigabyte each; it still catches use after free.
export ASAN_OPTIONS=${ASAN_OPTIONS:-quarantine_size_mb=64}
if [[ ! -f $build/CMakeCache.txt ]]; then
    CXX=${FUZZ_CXX:-clang++} cmake -S . -B "$build" -DSULKBOX_FUZZ=ON -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
fi
cmake --build "$build" -j"$(nproc)" >/dev/null

harnesses=("$@")
if ((${#harnesses[@]} == 0)); then
    for file in fuzz/corpus/*/; do
        harnesses+=("$(basename "$file")")
    done
fi
mkdir -p "$build/findings" "$build/logs"

run_one() {
    local name=$1 seconds=$2 build=$3
    mkdir -p "$build/corpus/$name"
    # shellcheck disable=SC2086
    "$build/fuzz/fuzz_$name" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
        -artifact_prefix="$build/findings/$name-" ${FUZZ_FLAGS:-} \
        "$build/corpus/$name" "fuzz/corpus/$name" >"$build/logs/$name.log" 2>&1 || true
}
export -f run_one

before=$(find "$build/findings" -type f | wc -l)
printf '%s\n' "${harnesses[@]}" | xargs -P "$jobs" -I{} bash -c 'run_one "$@"' _ {} "$seconds" "$build"

status=0
failed=()
printf '%-12s %12s %10s %8s %9s  %s\n' harness runs exec/s cov corpus findings
for name in "${harnesses[@]}"; do
    log=$build/logs/$name.log
    runs=$(grep -o 'stat::number_of_executed_units: *[0-9]*' "$log" | grep -o '[0-9]*$' || echo '?')
    speed=$(grep -o 'stat::average_exec_per_sec: *[0-9]*' "$log" | grep -o '[0-9]*$' || echo '?')
    cov=$(grep -o 'cov: [0-9]*' "$log" | tail -1 | grep -o '[0-9]*' || echo '?')
    corpus=$(grep -o 'corp: [0-9]*' "$log" | tail -1 | grep -o '[0-9]*' || echo '?')
    found=$(find "$build/findings" -type f -name "$name-*" | wc -l)
    if grep -q -E '^==[0-9]+==ERROR|runtime error|a reader broke its promise|ERROR: libFuzzer' "$log"; then
        found="$found (see $log)"
        failed+=("$name")
        status=1
    fi
    printf '%-12s %12s %10s %8s %9s  %s\n' "$name" "$runs" "$speed" "$cov" "$corpus" "$found"
done
# What broke, where a CI log shows only this script's output.
for name in "${failed[@]}"; do
    log=$build/logs/$name.log
    echo "== $name"
    grep -m1 -A30 -E '^==[0-9]+==ERROR|runtime error|a reader broke its promise|ERROR: libFuzzer' "$log" |
        grep -v -E '^ *#[0-9]+ .* in (fuzzer::|__sanitizer|__asan|__libc_start|main |_start)' | head -24
    for finding in "$build/findings/$name"-*; do
        [[ -f $finding ]] || continue
        echo "-- $finding"
        head -c 512 "$finding" | od -A d -c | head -16
    done
done
after=$(find "$build/findings" -type f | wc -l)
((after == before)) || status=1
exit $status
