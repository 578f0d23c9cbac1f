#!/usr/bin/env bash
# Writes src/ui/win32/Tarnwick.ico from the picture that src/ui/IconPixels.cpp paints. Needed after a change of it.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
g++ -std=c++20 -O2 -I"$root/src" "$root/scripts/IconFile.cpp" "$root/src/ui/IconPixels.cpp" -o "$work/icon-file"
"$work/icon-file" >"$root/src/ui/win32/Tarnwick.ico"
