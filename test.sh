#!/usr/bin/env bash
# Builds and tests Tarnwick.
#   ./test.sh            Linux: unit tests, tests with real windows, end-to-end tests on the real JDK
#   ./test.sh windows    cross-builds for 64-bit and 32-bit Windows; the 64-bit tests run under Wine
#   ./test.sh sanitize   unit tests under the address, undefined-behaviour and thread sanitizers
#   ./test.sh fuzz       the fuzz targets: the saved inputs, then 30 seconds of new ones for each (./fuzz.sh does more)
#   ./test.sh package    the packages: made and checked; Debian's installed, used and purged in a system of its own, the
#                        one for Windows under Wine
#   ./test.sh lint       clang-format over all files, clang-tidy over what the last thirty commits touched
#   ./test.sh ci         clang-format, Linux, Windows, the fuzz targets, the packages
# The last line sums up: "N passed, N failed, N skipped". Logs are in build/test-logs/.
set -uo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/scripts/common.sh"
exec </dev/null

logs=$root/build/test-logs
passed=0 failed=0 skipped=0

fail() {
  say "FAILED: $*"
  failed=$((failed + 1))
}

# start NAME SECONDS COMMAND...: runs a test program; its output and its exit code go to the logs. Nothing of the user's
# own settings reaches a test, and no test reaches them.
start() {
  local name=$1 limit=$2 status=0 home=$root/build/test-home/$1
  shift 2
  rm -rf "$home"
  mkdir -p "$home"
  env -u DISPLAY -u WAYLAND_DISPLAY -u TARNWICK_CFGDIR -u CLASSPATH -u JAVA_TOOL_OPTIONS -u _JAVA_OPTIONS \
    -u JDK_JAVA_OPTIONS -u JDK_JAVAC_OPTIONS HOME="$home" XDG_CONFIG_HOME="$home/.config" \
    XDG_DATA_HOME="$home/.local/share" XDG_CACHE_HOME="$home/.cache" \
    timeout --kill-after=15 "$limit" "$@" >"$logs/$name.log" 2>&1 || status=$?
  echo "$status" >"$logs/$name.status"
}

# What a reader wants of a log: each test that failed, was skipped or never ended, with all that it wrote.
extractOf() {
  tr -d '\r' <"$1" | awk '
    /^\[ RUN / { text = ""; inside = 1 }
    inside { text = text $0 "\n" }
    inside && /^\[ +OK \]/ { inside = 0; text = "" }
    inside && /^\[  (FAILED|SKIPPED) +\]/ { printf "%s", text; inside = 0; text = "" }
    END { if (inside) printf "%s(this test never ended)\n", text }'
}

# judge NAME: adds a finished test program to the sums.
judge() {
  local name=$1 log=$logs/$1.log status closing
  status=$(cat "$logs/$name.status")
  closing=$(tr -d '\r' <"$log" | grep -E '^[0-9]+ passed, [0-9]+ failed, [0-9]+ skipped$' | tail -n 1)
  say "$name: ${closing:-no closing line}"
  extractOf "$log" >&2
  local -a numbers
  IFS=' ' read -ra numbers <<<"${closing//[!0-9 ]/}"
  local failures=${numbers[1]:-0}
  passed=$((passed + ${numbers[0]:-0})) failed=$((failed + failures)) skipped=$((skipped + ${numbers[2]:-0}))
  if [ "$status" = 124 ] || [ "$status" = 137 ]; then
    fail "$name took too long"
  elif [ -z "$closing" ] || { [ "$status" != 0 ] && [ "$failures" = 0 ]; }; then
    tail -n 40 "$log" >&2
    fail "$name ended with code $status and did not say why"
  elif [ "${numbers[0]:-0}" = 0 ] && [ "$failures" = 0 ] && [ "${numbers[2]:-0}" = 0 ]; then
    fail "$name ran no test"
  fi
}

runTests() {
  start "$@"
  judge "$1"
}

# launch COUNT NAME SECONDS COMMAND...: so many processes at once, each with its share of the tests: by its number, or
# with the next one that no other has taken.
declare -A children=()
launch() {
  local count=$1 name=$2 index
  rm -rf "$logs/$name.taken"
  mkdir -p "$logs/$name.taken"
  for ((index = 0; index < count; index++)); do
    GTEST_TOTAL_SHARDS=$count GTEST_SHARD_INDEX=$index TARNWICK_TESTS_TAKEN=$logs/$name.taken start "$name-$((index + 1))" "${@:3}" &
    children[$name]+=" $!"
  done
}

# collect NAME: waits for what was launched, and adds it to the sums.
collect() {
  local name=$1 index=0 child
  for child in ${children[$name]:-}; do
    wait "$child"
    judge "$name-$((++index))"
  done
}

inShards() { launch "$@"; collect "$2"; }

installPackages() { "$root/scripts/packages.sh" "$@" || { fail "the packages could not be installed"; return 1; }; }
buildFor() { build "$@" || { fail "the build $1 failed"; return 1; }; }

# Ends without the end-to-end tests, which are launched where they can be.
testLinuxPrograms() {
  installPackages test || return
  buildFor linux Tarnwick tarnwick_unit_tests tarnwick_window_tests -- TARNWICK_TESTS=ON TARNWICK_TEST_FLOORS= || return
  inShards "$cores" linux-unit 300 "$root/build/linux/tests/tarnwick_unit_tests"
  inShards "$cores" linux-windows 900 "$root/scripts/with-display.sh" "$root/build/linux/tests/tarnwick_window_tests"
  # Each test has limits of its own; this is for a machine with ten times too much to do. They wait more than they work.
  launch $((cores + 1)) linux-end-to-end 9000 "$root/scripts/with-display.sh" /usr/bin/python3 "$root/tests/e2e/run.py" "$root"
}

testLinux() { testLinuxPrograms; collect linux-end-to-end; }

testWindows() { buildForWindows; testUnderWine; }

buildForWindows() {
  installPackages windows || return
  local target
  for target in x86_64 i686; do buildWindowsTarget $target; done
}

# loaderOf TARGET: Wine's, for that target's programs; nothing where this machine has none.
loaderOf() {
  case $1 in
    x86_64) PATH=/usr/lib/wine:$PATH command -v wine64 ;;
    i686) PATH=/usr/lib/wine:$PATH command -v wine32 || ls /usr/lib/i386-linux-gnu/wine/wine 2>/dev/null ;;
  esac
}

declare -A builtForWindows=()
buildWindowsTarget() {
  local target=$1 preset=windows-$1 folder targets=(Tarnwick)
  say "Toolkit for Windows, $target ..."
  if ! folder=$(timeout 1500 "$root/scripts/windows-toolkit.sh" "$target" 2>"$logs/toolkit-$target.log"); then
    tail -n 60 "$logs/toolkit-$target.log" >&2
    fail "the toolkit for Windows, $target, could not be built"
    return
  fi
  [ -n "$(loaderOf "$target")" ] && targets+=(tarnwick_unit_tests tarnwick_window_tests look)
  export "TARNWICK_TOOLKIT_${target^^}=$folder"
  buildFor "$preset" "${targets[@]}" -- "TARNWICK_TOOLKIT=$folder" TARNWICK_TEST_FLOORS= || return
  builtForWindows[$target]=yes
  runTests "$preset-program" 60 "$root/scripts/check-windows-program.sh" "$target" "$root/build/$preset/Tarnwick.exe"
}

# The 32-bit tests run where somebody has installed a 32-bit Wine; Debian's is of a foreign architecture.
testUnderWine() {
  local target preset loader
  rm -rf "$root"/build/wine*
  for target in x86_64 i686; do
    [ -n "${builtForWindows[$target]:-}" ] || continue
    preset=windows-$target loader=$(loaderOf "$target")
    if [ -z "$loader" ]; then
      say "skipped: the tests of the $target build, since this machine has no Wine for it"
      skipped=$((skipped + 1))
      continue
    fi
    underWine "$preset-unit" 1500 "$loader" "$root/build/$preset/tests/tarnwick_unit_tests.exe"
    underWine "$preset-windows" 1200 "$loader" "$root/build/$preset/tests/tarnwick_window_tests.exe"
    # The 64-bit program is the one that is driven from outside.
    [ "$target" = x86_64 ] && underWine "$preset-end-to-end" 1500 /usr/bin/python3 "$root/tests/e2e/run.py" "$root"
  done
}

underWine() {
  local name=$1 limit=$2
  shift 2
  inShards "$cores" "$name" "$limit" "$root/scripts/with-display.sh" "$root/scripts/with-wine.sh" "$root/build/wine" "$@"
}

testSanitized() {
  installPackages test || return
  export ASAN_OPTIONS=detect_stack_use_after_return=1:strict_string_checks=1
  export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
  export TSAN_OPTIONS=halt_on_error=1:second_deadlock_stack=1
  if buildFor linux-asan tarnwick_unit_tests -- TARNWICK_TEST_FLOORS=; then
    inShards "$cores" linux-asan-unit 900 "$root/build/linux-asan/tests/tarnwick_unit_tests"
  fi
  if buildFor linux-tsan tarnwick_unit_tests -- "TARNWICK_TEST_FLOORS=process;console"; then
    inShards "$cores" linux-tsan-unit 900 "$root/build/linux-tsan/tests/tarnwick_unit_tests"
  fi
}

testFuzz() {
  installPackages fuzz || return
  buildFor linux-fuzz fuzzers || return
  start fuzz 1800 "$root/fuzz.sh"
  cat "$logs/fuzz.log" >&2
  judge fuzz
}

# testPackage STEP...: a step that can't be done here ends with the line "skipped: " and the reason.
testPackage() {
  local step last
  for step in "$@"; do
    if timeout --kill-after=60 1500 "$root/package.sh" "$step" >"$logs/package-$step.log" 2>&1; then
      last=$(tail -n 1 "$logs/package-$step.log")
      say "package $step: $last"
      case $last in
        "skipped: "*) skipped=$((skipped + 1)) ;;
        *) passed=$((passed + 1)) ;;
      esac
    else
      tail -n 60 "$logs/package-$step.log" >&2
      fail "package $step"
      return
    fi
  done
}

# Nothing is installed while tests look at the desktop. While the end-to-end tests wait, the builds for Windows and the
# packages work; the tests under Wine come when they have ended: on a busy machine Wine's consoles may hang for good.
testAll() {
  installPackages lint test windows fuzz deb installer || return
  testForm --format
  testLinuxPrograms
  buildForWindows
  testPackage deb windows
  collect linux-end-to-end
  testUnderWine
  testFuzz
  testPackage check-deb check-windows
}

# testForm WHAT: as scripts/lint.sh takes it.
testForm() {
  if "$root/scripts/lint.sh" "$1" >"$logs/lint.log" 2>&1; then
    say "lint: $(tail -n 1 "$logs/lint.log")"
    passed=$((passed + 1))
  else
    tail -n 60 "$logs/lint.log" >&2
    fail "the form of the code"
  fi
}

mkdir -p "$logs"
rm -rf "$root/build/e2e" "$root/build/e2e-windows"
SECONDS=0
case ${1:-} in
  '') testLinux ;;
  windows) testWindows ;;
  sanitize) testSanitized ;;
  fuzz) testFuzz ;;
  package) testPackage deb check-deb windows check-windows ;;
  lint) testForm --recent ;;
  ci) testAll ;;
  *) say "usage: test.sh [windows|sanitize|fuzz|package|lint|ci]"; exit 2 ;;
esac
say "$((SECONDS / 60)) min $((SECONDS % 60)) s"
echo "$passed passed, $failed failed, $skipped skipped"
[ "$failed" = 0 ] && [ "$passed" -gt 0 ]
