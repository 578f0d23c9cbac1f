#!/usr/bin/env bash
# Fetches the sources of well-known Java libraries from Debian and unpacks them:
# libraries.sh [--patched] FOLDER [PACKAGE...]
# Without packages, all that are named here. With --patched Debian's own changes are in them, without which not each of
# them compiles with what Debian has of the others. Prints the number of sources of each.
set -euo pipefail

patched=
[ "${1:-}" = --patched ] && patched=yes && shift
folder=${1:?usage: libraries.sh [--patched] FOLDER [PACKAGE...]}
shift
packages=("$@")
[ $# -gt 0 ] || packages=(ant antlr4 commons-io groovy guava-libraries h2database jackson-core jackson-databind jsoup junit4 junit5
  libcommons-collections4-java libcommons-lang3-java lucene8 mockito)

# The system's own sources with deb-src switched on, in a list of our own, in either of apt's two notations.
mkdir -p "$folder/apt/parts" "$folder/apt/lists/partial" "$folder/packed"
folder=$(cd "$folder" && pwd)
for found in /etc/apt/sources.list.d/*.sources; do
  [ -e "$found" ] && sed 's/^Types:.*/Types: deb-src/' "$found" >"$folder/apt/parts/$(basename "$found")"
done
for found in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
  [ -e "$found" ] && sed -n 's/^deb[[:space:]]/deb-src /p' "$found" >"$folder/apt/parts/$(basename "$found" .list).list"
done
apt=(-q -o Dir::Etc::sourcelist=/dev/null -o "Dir::Etc::sourceparts=$folder/apt/parts"
  -o "Dir::State::Lists=$folder/apt/lists" -o APT::Sandbox::User= -o Debug::NoLocking=1)
apt-get "${apt[@]}" update >&2
cd "$folder/packed"
missing=0
for package in "${packages[@]}"; do
  if [ ! -d "$folder/$package" ]; then
    parts=(--tar-only)
    [ -z "$patched" ] || parts=()
    if ! apt-get "${apt[@]}" source "${parts[@]}" --download-only "$package" >&2; then
      echo "$package: could not be had"
      missing=$((missing + 1))
      continue
    fi
    rm -rf "$folder/$package.new"
    mkdir "$folder/$package.new"
    tar -xf "$(ls "$package"_*.orig.tar.*[a-z] | grep -v '\.asc$')" -C "$folder/$package.new" --strip-components=1
    if [ -n "$patched" ]; then
      tar -xf "$(ls "$package"_*.debian.tar.*[a-z] | grep -v '\.asc$')" -C "$folder/$package.new"
      changes=$folder/$package.new/debian/patches
      [ ! -f "$changes/series" ] || sed '/^[[:space:]]*\(#\|$\)/d' "$changes/series" | while read -r name _; do
        patch -d "$folder/$package.new" -p1 -s <"$changes/$name" >&2
      done
    fi
    mv "$folder/$package.new" "$folder/$package"
  fi
  echo "$package: $(find "$folder/$package" -name '*.java' | wc -l) sources"
done
echo "$((${#packages[@]} - missing)) libraries, $missing missing"
[ "$missing" = 0 ]
