#!/usr/bin/env bash
# Installs the Debian packages that a job needs, and only those that are missing.
# usage: scripts/packages.sh [--list] GROUP...     groups: run, test, windows, lint, fuzz, bench
# --list prints what is missing, one package a line, and installs nothing.
set -euo pipefail

runPackages() {
  echo g++ cmake ninja-build ccache pkgconf libwxgtk3.2-dev libgtk-3-dev libx11-dev libcanberra-dev libglib2.0-dev librsvg2-common
  hasJdk || echo default-jdk
  hasFixedPitchFont || echo fonts-dejavu-core
  hasTextEditor || echo mousepad
}

# Python and the accessibility library find the buttons of the running program by their labels, as a person does.
testPackages() {
  runPackages
  echo googletest xvfb openbox xdotool xclip imagemagick x11-utils x11-xserver-utils
  echo dbus-daemon at-spi2-core python3 python3-gi gir1.2-atspi-2.0
}

# dpkg-dev and xz-utils unpack the source package of the toolkit.
windowsPackages() {
  testPackages
  echo g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix wine64 dpkg-dev xz-utils binutils
}

# What the benchmarks read, and what they are compared with.
benchPackages() {
  echo g++ cmake ninja-build ccache pkgconf libcanberra-dev libglib2.0-dev libbenchmark-dev python3 make universal-ctags
  echo openjdk-17-source stterm xterm xdotool xvfb openbox
}

# clang-tidy reads all that is compiled, so it wants what the tests want.
lintPackages() {
  testPackages
  echo clang clang-format clang-tidy
}

# llvm names the lines in a sanitizer's report.
fuzzPackages() {
  echo g++ cmake ninja-build ccache pkgconf libcanberra-dev libglib2.0-dev clang libclang-rt-dev llvm
}

hasJdk() { [ -x "${JAVA_HOME:-/nowhere}/bin/javac" ] || command -v javac >/dev/null; }

hasFixedPitchFont() { command -v fc-list >/dev/null && [ -n "$(fc-list :spacing=mono family)" ]; }

# An application with a window of its own that opens plain text.
hasTextEditor() {
  local folder entry
  local -a folders
  IFS=: read -ra folders <<<"${XDG_DATA_HOME:-${HOME:-/root}/.local/share}:${XDG_DATA_DIRS:-/usr/local/share:/usr/share}"
  for folder in "${folders[@]}"; do
    for entry in "$folder"/applications/*.desktop; do
      [ -e "$entry" ] || continue
      grep -q '^MimeType=.*text/plain' "$entry" && ! grep -qi '^\(Terminal\|NoDisplay\|Hidden\)=true' "$entry" && return 0
    done
  done
  return 1
}

missingOf() {
  local installed
  installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null | sed -n 's/^installed //p' || true)
  printf '%s\n' "$@" | sort -u | comm -23 - <(printf '%s\n' "$installed" | sort -u)
}

install() {
  local -a asRoot=(env DEBIAN_FRONTEND=noninteractive)
  if [ "$(id -u)" != 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "These packages are missing, and neither are you root nor is there a sudo: $*" >&2
      exit 1
    fi
    asRoot=(sudo "${asRoot[@]}")
  fi
  local -a apt=("${asRoot[@]}" apt-get -o DPkg::Lock::Timeout=300 -o Acquire::Retries=3 -q)
  echo "Installing: $*" >&2
  "${apt[@]}" update >&2 </dev/null
  "${apt[@]}" install -y --no-install-recommends "$@" >&2 </dev/null
}

onlyList=
[ "${1:-}" = --list ] && { onlyList=yes; shift; }
[ $# -gt 0 ] || { echo "usage: packages.sh [--list] run|test|windows|lint|fuzz|bench..." >&2; exit 2; }

wanted=()
for group in "$@"; do
  case $group in
    run | test | windows | lint | fuzz | bench) mapfile -t -O "${#wanted[@]}" wanted < <("${group}Packages" | tr ' ' '\n') ;;
    *) echo "packages.sh: unknown group $group" >&2; exit 2 ;;
  esac
done
command -v dpkg-query >/dev/null || { echo "packages.sh: this is not Debian; see scripts/packages.sh for what is needed" >&2; exit 1; }

mapfile -t missing < <(missingOf "${wanted[@]}")
if [ -n "$onlyList" ]; then
  [ ${#missing[@]} = 0 ] || printf '%s\n' "${missing[@]}"
elif [ ${#missing[@]} -gt 0 ]; then
  install "${missing[@]}"
fi
