#!/usr/bin/env bash
# Runs a command with a Wine prefix and a home folder of its own, made at the first use. Needs a display.
# usage: scripts/with-wine.sh FOLDER COMMAND [ARGUMENT...]     $WINE is the loader to start programs with
set -euo pipefail
[ $# -gt 1 ] || { echo "usage: with-wine.sh FOLDER COMMAND..." >&2; exit 2; }
# Processes that share the tests have a prefix each.
folder=$1${GTEST_SHARD_INDEX:+-$GTEST_SHARD_INDEX}
shift

WINE=$(PATH=/usr/lib/wine:$PATH command -v wine64) || { echo "with-wine.sh: no wine64 here" >&2; exit 1; }
server=$(PATH=/usr/lib/wine:$PATH command -v wineserver64 || PATH=/usr/lib/wine:$PATH command -v wineserver)
mkdir -p "$folder/home" "$folder/prefix"
# Wine takes its 8-bit character set and the names of files from the locale.
export LC_ALL=C.UTF-8
export WINE WINEPREFIX=$folder/prefix HOME=$folder/home WINEDEBUG=-all WINEARCH=win64
# No offers to download a browser engine or another run-time.
export WINEDLLOVERRIDES='mscoree,mshtml='
export XDG_CONFIG_HOME=$HOME/.config XDG_DATA_HOME=$HOME/.local/share XDG_CACHE_HOME=$HOME/.cache

finish() { timeout 60 "$server" -k </dev/null >/dev/null 2>&1 || true; }
trap finish EXIT
trap 'exit 143' TERM INT HUP

# The server stays until finish ends it. Were it started by the first program, it would hold that program's output
# open, and whoever reads it would wait.
timeout 60 "$server" -p </dev/null >/dev/null 2>&1
if [ ! -f "$WINEPREFIX/complete" ]; then
  timeout 300 "$WINE" wineboot -u </dev/null >/dev/null 2>&1 || { echo "with-wine.sh: wineboot failed" >&2; exit 1; }
  touch "$WINEPREFIX/complete"
fi
# Wine's own services start now, in this environment, and not as children of the first program.
timeout 60 "$WINE" wineboot </dev/null >/dev/null 2>&1 || { echo "with-wine.sh: wineboot failed" >&2; exit 1; }

status=0
"$@" <&0 &
command=$!
wait "$command" || status=$?
exit "$status"
