#!/usr/bin/env bash
# Measures one thing and prints the figures, next to what it is to be compared with. No test: no figure fails.
#   ./bench.sh outline     the outline of all sources of java.base; Universal Ctags; only reading the files
#   ./bench.sh uptodate    is each source of a project up to date; make
#   ./bench.sh compileall  "javac  all" of a real project; a bare javac @list
#   ./bench.sh projectfiles  the window "Files" above 5000 sources; find
#   ./bench.sh report      what becomes of the sources of the whole JDK: how many end in which message
#   ./bench.sh console     a flood of output on the screen, and keys meanwhile; st; xterm
#   ./bench.sh start       the first window and its memory; geany, mousepad, a bare dialog; what is added to java and javac
#   ./bench.sh micro       small hot paths, by Google Benchmark; what follows is passed to it
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/scripts/common.sh"

name=${1:-}
case $name in
  outline | report | uptodate | compileall | projectfiles | micro | console | start) shift ;;
  *) say "usage: bench.sh outline|report|uptodate|compileall|projectfiles|console|start|micro"; exit 2 ;;
esac
if [ "$name" = console ] || [ "$name" = start ]; then
  "$root/scripts/packages.sh" test bench
  build linux Tarnwick
  exec "$root/scripts/with-display.sh" /usr/bin/python3 "$root/bench/$name.py" "$@"
fi
groups=(bench) windows=OFF display=()
if [ "$name" = projectfiles ]; then
  groups+=(test) windows=ON display=("$root/scripts/with-display.sh")
fi
"$root/scripts/packages.sh" "${groups[@]}"
build linux-bench benchmarks -- TARNWICK_WINDOWS=$windows
mkdir -p "$root/build/bench"
cd "$root/build/bench"
if [ "$name" = micro ]; then exec "$root/build/linux-bench/bench/micro" "$@" </dev/null; fi
exec "${display[@]}" /usr/bin/python3 "$root/bench/$name.py" "$root/build/linux-bench/bench" "$root/build/bench" </dev/null
