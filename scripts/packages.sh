#!/usr/bin/env bash
# Installs the Debian packages that a job needs, and only those that are missing.
# usage: scripts/packages.sh [--list] GROUP...     groups: run, test, windows, lint, fuzz, bench, deb, installer
# --list prints what is missing, one package a line, and installs nothing.
set -euo pipefail

runPackages() {
  echo g++ cmake ninja-build ccache pkgconf libwxgtk3.2-dev libgtk-3-dev libx11-dev libcanberra-dev libglib2.0-dev librsvg2-common
  hasJdk || echo default-jdk
  hasFixedPitchFont || echo fonts-dejavu-core
  hasTextEditor || echo mousepad
}

# Python and the accessibility library find the buttons of the running program by their labels, as a person does. Gvfs
# keeps the mark by which a desktop trusts a launcher. Sources of well-known libraries are compiled with the two libraries
# that they want.
testPackages() {
  runPackages
  echo libhamcrest-java libjsr305-java patch xz-utils
  echo googletest xvfb openbox xdotool xclip imagemagick x11-utils x11-xserver-utils
  echo libglib2.0-bin gvfs gvfs-daemons dbus-daemon at-spi2-core python3 python3-gi gir1.2-atspi-2.0
}

# dpkg-dev and xz-utils unpack the source package of the toolkit; the icon is made of its drawing.
windowsPackages() {
  testPackages
  echo g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix wine64 dpkg-dev xz-utils binutils librsvg2-bin
}

# What the benchmarks read, and what they are compared with.
benchPackages() {
  echo g++ cmake ninja-build ccache pkgconf libcanberra-dev libglib2.0-dev libbenchmark-dev python3 make universal-ctags
  echo openjdk-17-source stterm xterm geany mousepad xdotool xvfb openbox
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

# What builds a Debian package, and what checks one.
debPackages() {
  echo g++ cmake ninja-build ccache pkgconf libwxgtk3.2-dev libgtk-3-dev libx11-dev libcanberra-dev libglib2.0-dev
  echo debhelper dpkg-dev fakeroot librsvg2-bin lintian desktop-file-utils appstream libxml2-utils shared-mime-info man-db debootstrap
}

# What makes the archive and the installer for Windows of the programs.
installerPackages() { echo nsis dpkg-dev python3; }

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

# needsByName: on a system with other packages, what running the program needs, by its usual names. Fails if some of it
# is missing; what tests and checks need beyond that shows itself.
needsByName() {
  local library
  local -a needs=()
  command -v c++ >/dev/null || needs+=("a C++20 compiler (gcc-c++ or clang)")
  command -v cmake >/dev/null || needs+=("CMake 3.25 or newer (cmake)")
  command -v ninja >/dev/null || needs+=("Ninja (ninja-build or ninja)")
  command -v pkg-config >/dev/null || needs+=("pkg-config (pkgconf)")
  for library in gtk+-3.0 x11 libcanberra gio-unix-2.0; do
    pkg-config --exists "$library" 2>/dev/null || needs+=("$library with its headers (its -devel or -dev package)")
  done
  [ "$(wx-config --toolkit=gtk3 --version 2>/dev/null | cut -d. -f1-2)" = 3.2 ] ||
    needs+=("wxWidgets 3.2 for GTK 3 with its headers (wxGTK-devel, wxwidgets-gtk3)")
  hasJdk || needs+=("a JDK (java-devel, jdk-openjdk)")
  [ ${#needs[@]} = 0 ] && return
  echo "There is no apt-get here to install what is missing. Tarnwick needs:" >&2
  printf '  %s\n' "${needs[@]}" >&2
  return 1
}

onlyList=
[ "${1:-}" = --list ] && { onlyList=yes; shift; }
[ $# -gt 0 ] || { echo "usage: packages.sh [--list] run|test|windows|lint|fuzz|bench|deb|installer..." >&2; exit 2; }

command -v apt-get >/dev/null || { needsByName; exit; }
wanted=()
for group in "$@"; do
  case $group in
    run | test | windows | lint | fuzz | bench | deb | installer) mapfile -t -O "${#wanted[@]}" wanted < <("${group}Packages" | tr ' ' '\n') ;;
    *) echo "packages.sh: unknown group $group" >&2; exit 2 ;;
  esac
done

mapfile -t missing < <(missingOf "${wanted[@]}")
if [ -n "$onlyList" ]; then
  [ ${#missing[@]} = 0 ] || printf '%s\n' "${missing[@]}"
elif [ ${#missing[@]} -gt 0 ]; then
  install "${missing[@]}"
fi
