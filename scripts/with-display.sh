#!/usr/bin/env bash
# Runs a command on a display of its own (Xvfb with the window manager openbox) and ends both afterwards.
# usage: scripts/with-display.sh COMMAND [ARGUMENT...]
set -euo pipefail
[ $# -gt 0 ] || { echo "usage: with-display.sh COMMAND..." >&2; exit 2; }

size=${TARNWICK_DISPLAY_SIZE:-1280x1024x24}
notes=$(mktemp -d "${TMPDIR:-/tmp}/tarnwick-display-XXXXXX")
server='' manager='' command=''

finish() {
  local process
  # The command first: windows that lose their display write noise.
  for process in $command $manager $server; do
    kill "$process" 2>/dev/null || true
    wait "$process" 2>/dev/null || true
  done
  rm -rf "$notes"
}
trap finish EXIT
trap 'exit 143' TERM INT HUP

# The server itself picks a free number and writes it to descriptor 8 as soon as it takes connections.
Xvfb -displayfd 8 -screen 0 "$size" -nolisten tcp -noreset 8>"$notes/number" >"$notes/server.log" 2>&1 </dev/null &
server=$!
for _ in $(seq 100); do
  [ -s "$notes/number" ] && break
  kill -0 "$server" 2>/dev/null || break
  sleep 0.1
done
if ! [ -s "$notes/number" ]; then
  echo "with-display.sh: Xvfb did not start:" >&2
  cat "$notes/server.log" >&2
  exit 1
fi
DISPLAY=:$(tr -d '[:space:]' <"$notes/number")
export DISPLAY
unset WAYLAND_DISPLAY XAUTHORITY
export GDK_BACKEND=x11 GSETTINGS_BACKEND=memory

HOME=$notes XDG_CONFIG_HOME=$notes/config XDG_CACHE_HOME=$notes/cache XDG_DATA_HOME=$notes/data \
  openbox >"$notes/manager.log" 2>&1 </dev/null &
manager=$!
for _ in $(seq 100); do
  xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break
  kill -0 "$manager" 2>/dev/null || { echo "with-display.sh: openbox did not start:" >&2; cat "$notes/manager.log" >&2; exit 1; }
  sleep 0.1
done

"$@" <&0 &
command=$!
status=0
wait "$command" || status=$?
command=''
exit "$status"
