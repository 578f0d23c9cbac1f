#!/usr/bin/env bash
# Sets up, builds and starts Tarnwick. What follows is passed to the program.
#   ./run.sh            opens the panel
#   ./run.sh --demo     needs no display: walks through the program and leaves screenshots in build/demo/
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/scripts/common.sh"

if [ "${1:-}" = --demo ]; then
  "$root/scripts/packages.sh" run test
  build linux Tarnwick
  export TARNWICK_DISPLAY_SIZE=1280x880x24
  exec timeout --kill-after=10 600 "$root/scripts/with-display.sh" /usr/bin/python3 "$root/tests/e2e/demo.py" "$root" </dev/null
fi

"$root/scripts/packages.sh" run
# The tests want packages that only to run the program does not.
if isConfigured linux; then build linux Tarnwick; else build linux Tarnwick -- TARNWICK_TESTS=OFF; fi
exec "$root/build/linux/tarnwick" "$@"
