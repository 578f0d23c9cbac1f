# Sourced by run.sh and test.sh: where things are, quiet commands and builds.
# shellcheck shell=bash

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cores=$(nproc 2>/dev/null || echo 2)

# An inherited closed standard input would hand its number to the next file that somebody opens.
{ true <&0; } 2>/dev/null || exec </dev/null

say() { printf '%s\n' "$*" >&2; }

# quietly LOG COMMAND...: the output goes to the log, and is shown only if the command fails.
quietly() {
  local log=$1 status=0
  shift
  mkdir -p "$(dirname "$log")"
  "$@" >"$log" 2>&1 </dev/null || status=$?
  [ $status = 0 ] && return 0
  say "Failed ($status): $*"
  tail -n 200 "$log" >&2
  say "The whole log: $log"
  return $status
}

# isConfigured PRESET CACHE-ENTRY...: whether the build folder was configured with these values.
isConfigured() {
  local cache=$root/build/$1/CMakeCache.txt entry
  [ -f "$root/build/$1/build.ninja" ] && [ -f "$cache" ] || return 1
  grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$cache" || return 1
  shift
  for entry in "$@"; do
    grep -q "^${entry%%=*}:[A-Z]*=${entry#*=}\$" "$cache" || return 1
  done
}

# build PRESET TARGET... [-- CACHE-ENTRY...]: configures where needed and builds; one build at a time in this checkout.
build() {
  local preset=$1 folder=$root/build/$1 entry
  local -a targets=() entries=()
  shift
  while [ $# -gt 0 ] && [ "$1" != -- ]; do targets+=("$1"); shift; done
  for entry in "${@:2}"; do entries+=("$entry"); done
  mkdir -p "$root/build"
  (
    flock 9
    if ! isConfigured "$preset" "${entries[@]}"; then
      # A build folder that was moved here from another place is no use.
      if [ -f "$folder/CMakeCache.txt" ] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"; then
        rm -rf "$folder"
      fi
      say "Configuring $preset ..."
      cd "$root" || exit
      quietly "$folder/configure.log" cmake --preset "$preset" "${entries[@]/#/-D}" || exit
    fi
    # Nobody wants to hear of a build that has nothing to do.
    (sleep 0.5; say "Building $preset: ${targets[*]} ...") 9>&- &
    local notice=$! status=0
    quietly "$folder/build.log" cmake --build "$folder" -j "$cores" --target "${targets[@]}" || status=$?
    { kill "$notice" && wait "$notice"; } 2>/dev/null || true
    exit $status
  ) 9>"$root/build/.lock"
}
