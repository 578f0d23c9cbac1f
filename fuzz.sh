#!/usr/bin/env bash
# Builds the fuzz targets, runs what was saved in fuzz/corpus/, then tries new inputs.
#   ./fuzz.sh [SECONDS] [TARGET...]     30 seconds for each target, all targets
# The last line sums up: "N passed, N failed, N skipped". New inputs, logs and inputs that broke a rule go to build/fuzz/.
set -uo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/scripts/common.sh"
exec </dev/null

work=$root/build/fuzz
seconds=30
[[ ${1:-} =~ ^[0-9]+$ ]] && { seconds=$1; shift; }
mapfile -t all < <(sed -n 's/^tarnwick_fuzzer(\([a-z_]*\) .*/\1/p' "$root/fuzz/CMakeLists.txt")
targets=("$@")
[ $# -gt 0 ] || targets=("${all[@]}")
for target in "${targets[@]}"; do
  [[ " ${all[*]} " == *" $target "* ]] || { say "usage: fuzz.sh [SECONDS] [TARGET...]     targets: ${all[*]}"; exit 2; }
done

# With sanitizers that end the run at the first fault, and an eye on what is never freed.
export ASAN_OPTIONS=detect_leaks=1:detect_stack_use_after_return=1:strict_string_checks=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1

# runTarget NAME: the saved inputs, then new ones; gives the exit code of what failed first.
runTarget() {
  local name=$1 saved=$root/fuzz/corpus/$1 found=$work/corpus/$1 status=0
  local -a command=("$root/build/linux-fuzz/fuzz/$name" "-artifact_prefix=$work/broken/$name-" -timeout=20 -rss_limit_mb=2048)
  [ -f "$root/fuzz/$name.dict" ] && command+=("-dict=$root/fuzz/$name.dict")
  mkdir -p "$found" "$work/broken"
  "${command[@]}" "$saved"/* || return
  timeout --kill-after=15 $((seconds + 120)) "${command[@]}" -max_total_time="$seconds" -print_final_stats=1 \
    -max_len=4096 "$found" "$saved"
}

# describe NAME STATUS: one line of what happened, and the report if a rule was broken.
describe() {
  local log=$work/$1.log executions
  executions=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -n 1)
  if [ "$2" = 0 ]; then
    say "$1: $(find "$root/fuzz/corpus/$1" -type f | wc -l) saved inputs, ${executions:-no} new ones in $seconds s: all rules hold"
  else
    grep -vE '^(#|INFO|Executed|Running)' "$log" | tail -n 60 >&2
    say "FAILED: $1 (code $2); the whole log: $log; the input: $work/broken/"
  fi
}

"$root/scripts/packages.sh" fuzz || exit 1
build linux-fuzz fuzzers || exit 1
mkdir -p "$work"
rm -f "$work"/*.status

# As many at once as there are cores, two at most: each one keeps its core busy.
atOnce=$((cores < 2 ? 1 : 2)) running=0
for target in "${targets[@]}"; do
  [ "$running" -lt "$atOnce" ] || { wait -n; running=$((running - 1)); }
  (
    status=0
    runTarget "$target" >"$work/$target.log" 2>&1 || status=$?
    echo $status >"$work/$target.status"
  ) &
  running=$((running + 1))
done
wait

passed=0 failed=0
for target in "${targets[@]}"; do
  status=$(cat "$work/$target.status" 2>/dev/null || echo lost)
  describe "$target" "$status"
  if [ "$status" = 0 ]; then passed=$((passed + 1)); else failed=$((failed + 1)); fi
done
echo "$passed passed, $failed failed, 0 skipped"
[ "$failed" = 0 ] && [ "$passed" -gt 0 ]
