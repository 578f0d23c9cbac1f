#!/usr/bin/env bash
# Makes an icon file for Windows of a drawing: all sizes that its scalings ask for. The same drawing gives the same bytes.
# usage: scripts/make-icon.sh DRAWING.svg ICON.ico
set -euo pipefail
drawing=$1 icon=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
pictures=()
for side in 16 20 24 32 40 48 64 256; do
  rsvg-convert -w $side -h $side -o "$work/$side.png" "$drawing"
  pictures+=("$work/$side.png")
done
convert "${pictures[@]}" -strip -define png:exclude-chunks=date,time "$work/icon.ico"
mv "$work/icon.ico" "$icon"
