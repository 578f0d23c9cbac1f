#!/usr/bin/env bash
# Builds the static wxWidgets for one Windows target from Debian's own source package, once, and prints its folder.
# usage: scripts/windows-toolkit.sh x86_64|i686
# The result is kept outside the checkout, keyed by version, target, compiler and options.
set -euo pipefail

target=${1:?usage: windows-toolkit.sh x86_64|i686}
case $target in x86_64 | i686) ;; *) echo "windows-toolkit.sh: unknown target $target" >&2; exit 2 ;; esac

cache=${XDG_CACHE_HOME:-$HOME/.cache}/tarnwick
version=$(dpkg-query -W -f '${source:Upstream-Version}' libwxgtk3.2-dev)
options=(
  -DCMAKE_BUILD_TYPE=Release -DwxBUILD_SHARED=OFF -DwxBUILD_PRECOMP=ON
  -DwxUSE_XML=OFF -DwxUSE_XRC=OFF -DwxUSE_EXPAT=OFF -DwxUSE_LIBPNG=OFF -DwxUSE_LIBJPEG=OFF -DwxUSE_LIBTIFF=OFF
  -DwxUSE_ZLIB=OFF -DwxUSE_REGEX=OFF -DwxUSE_WEBVIEW=OFF -DwxUSE_STC=OFF -DwxUSE_OPENGL=OFF
  -DwxUSE_MEDIACTRL=OFF -DwxUSE_SVG=OFF -DwxUSE_NANOSVG=builtin -DwxUSE_ARTPROVIDER_TANGO=OFF
)
# No path of this machine gets into a program: asserts name their files from here on.
flags=(-fstack-protector-strong -ffile-prefix-map=SOURCES=wx)
compiler=$("$target-w64-mingw32-g++-posix" -dumpfullversion)
key=$(printf '%s\n' "$version" "$target" "$compiler" "${options[@]}" "${flags[@]}" | sha256sum | cut -c1-12)
place=$cache/wx-$version-$target-$key
if [ -f "$place/complete" ]; then
  echo "$place"
  exit 0
fi

mkdir -p "$cache"
exec 9>"$cache/toolkit.lock"
flock 9
[ -f "$place/complete" ] && { echo "$place"; exit 0; }

tarball=$cache/wxwidgets3.2_$version.orig.tar.xz
fetchSource() {
  local lists=$cache/apt
  rm -rf "$lists"
  mkdir -p "$lists/parts" "$lists/lists/partial"
  # The system's own sources with deb-src switched on, in either of apt's two notations.
  local found
  for found in /etc/apt/sources.list.d/*.sources; do
    [ -e "$found" ] && sed 's/^Types:.*/Types: deb-src/' "$found" >"$lists/parts/$(basename "$found")"
  done
  for found in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
    [ -e "$found" ] && sed -n 's/^deb[[:space:]]/deb-src /p' "$found" >"$lists/parts/$(basename "$found" .list).list"
  done
  local apt=(-o Dir::Etc::sourcelist=/dev/null -o "Dir::Etc::sourceparts=$lists/parts" -o "Dir::State::Lists=$lists/lists"
    -o APT::Sandbox::User= -o Debug::NoLocking=1)
  apt-get "${apt[@]}" update >&2
  (cd "$cache" && apt-get "${apt[@]}" source --download-only wxwidgets3.2 >&2)
  [ -f "$tarball" ] || { ls "$cache" >&2; echo "windows-toolkit.sh: no $tarball after the download" >&2; exit 1; }
}
[ -f "$tarball" ] || fetchSource

work=$(mktemp -d "$cache/build-XXXXXX")
trap 'rm -rf "$work"' EXIT
mkdir "$work/source"
tar -xf "$tarball" -C "$work/source" --strip-components=1
# Where the time of building is asked for, it is one that every build tells.
export SOURCE_DATE_EPOCH=946684800
flags=("${flags[@]/SOURCES/$work}")
cmake -S "$work/source" -B "$work/build" -G Ninja "${options[@]}" \
  -DCMAKE_C_FLAGS="${flags[*]}" -DCMAKE_CXX_FLAGS="${flags[*]}" -DCMAKE_SYSTEM_NAME=Windows -DCMAKE_INSTALL_PREFIX="$place.new" \
  -DCMAKE_C_COMPILER="$target-w64-mingw32-gcc-posix" -DCMAKE_CXX_COMPILER="$target-w64-mingw32-g++-posix" \
  -DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache \
  -DCMAKE_RC_COMPILER="$target-w64-mingw32-windres" >&2
cmake --build "$work/build" --target wxbase wxcore >&2

rm -rf "$place.new" "$place"
mkdir -p "$place.new/lib" "$place.new/include"
find "$work/build/lib" -name '*.a' -exec cp {} "$place.new/lib/" \;
setup=$(find "$work/build/lib" -path '*wx/setup.h' | head -n 1)
mkdir -p "$place.new/include/wx/msw"
cp -r "$work/source/include/wx" "$place.new/include/"
cp "$setup" "$place.new/include/wx/setup.h"
cp "$work/source/include/wx/msw/"*.rc "$work/source/include/wx/msw/"*.manifest "$place.new/include/wx/msw/" 2>/dev/null || true
ls -R "$work/build/lib" >&2
mv "$place.new" "$place"
touch "$place/complete"
echo "$place"
