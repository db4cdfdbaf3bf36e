# What the benchmark scripts measure a running process by, and their work
# folder. Sourced, not run.

# need_exe PATH: stops the script unless PATH is an executable.
need_exe() {
    [[ -x $1 ]] || { echo "no executable at $1; build the sulkbox target first" >&2; exit 1; }
}

# bench_work: a temporary folder in $work, removed when the script exits,
# and with it the process in $pid if one is still running.
bench_work() {
    work=$(mktemp -d)
    pid=
    trap 'if [[ -n $pid ]]; then kill "$pid" 2>/dev/null && wait "$pid" 2>/dev/null; fi; rm -rf "$work"' EXIT
}

# Lines the measured process has printed to $work/out so far.
lines() { wc -l <"$work/out"; }

# CPU time of all the threads of process $1 so far, in nanoseconds
# (schedstat: no tick rounding).
cpu_ns() { cat /proc/"$1"/task/*/schedstat 2>/dev/null | awk '{s += $1} END {printf "%.0f", s}'; }
# Resident memory of process $1 now and at its peak, in kB.
rss_kb() { awk '/^VmRSS:/ {print $2}' "/proc/$1/status"; }
hwm_kb() { awk '/^VmHWM:/ {print $2}' "/proc/$1/status"; }
