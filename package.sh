#!/usr/bin/env bash
# Makes packages that a person can install, and checks them; they are left in build/packages/.
#   ./package.sh deb           a Debian package; looked over by lintian and the desktop's own validators
#   ./package.sh check-deb     the one that is there: installed in a minimal system of its own, used there, and purged
#   ./package.sh windows       for Windows, of 64 and of 32 bits: an archive to unpack anywhere, and an installer
#   ./package.sh check-windows  those of 64 bits: installed, started, uninstalled and unpacked under Wine
#   ./package.sh same          all of them once more, elsewhere, at another time and without the compiler's cache
# The same sources give the same bytes, wherever they are built.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/scripts/common.sh"

packages=$root/build/packages

# sourcesIn FOLDER: the project's files as they stand, without what is not kept in it.
sourcesIn() {
  rm -rf "$1"
  mkdir -p "$1"
  if git -C "$root" rev-parse --git-dir >/dev/null 2>&1; then
    git -C "$root" ls-files -z --cached --others --exclude-standard |
      (cd "$root" && xargs -0 sh -c 'for file; do [ ! -e "$file" ] || printf "%s\0" "$file"; done' sh) |
      tar -C "$root" --null -T - -c | tar -C "$1" -x
  else
    tar -C "$root" --exclude=./build -c . | tar -C "$1" -x
  fi
}

# debianPackageIn FOLDER: builds one there and prints its path. Its build folder is empty, so that nothing of an earlier
# build comes in.
debianPackageIn() {
  sourcesIn "$1/tarnwick"
  cp -r "$1/tarnwick/packaging/debian" "$1/tarnwick/debian"
  rm -f "$1"/*.deb
  # The compiler by its usual name: the cache's own would be seen in the package's build information.
  (cd "$1/tarnwick" && quietly "$1/build.log" env DEB_BUILD_OPTIONS="parallel=$cores" dpkg-buildpackage -b -us -uc)
  ls "$1"/tarnwick_*.deb
}

packDebian() {
  "$root/scripts/packages.sh" deb
  say "Building the Debian package ..."
  rm -f "$packages"/tarnwick_*.deb
  cp "$(debianPackageIn "$packages/debian")" "$packages"
  checkDebian "$(ls "$packages"/tarnwick_*.deb)"
}

# checkDebian PACKAGE: all that Debian's and the desktop's own tools have to say of it, which is nothing.
checkDebian() {
  local package=$1 content=$packages/debian/content said=0
  rm -rf "$content"
  dpkg-deb -x "$package" "$content"
  silent() {
    local output
    output=$("$@" 2>&1) && [ -z "$output" ] && { say "silent: $1"; return; }
    say "$* says:" && say "$output"
    said=1
  }
  quiet() { "$@" >"$packages/debian/check.log" 2>&1 && { say "content: $1"; return; }; cat "$packages/debian/check.log" >&2; said=1; }
  pageOf() { man --warnings -E UTF-8 -l -Tutf8 -Z "$1" 2>&1 >/dev/null; }
  silent lintian --allow-root -i -E --pedantic --fail-on warning "$package"
  silent desktop-file-validate "$content"/usr/share/applications/*.desktop
  quiet appstreamcli validate --no-net --pedantic --explain "$content"/usr/share/metainfo/*.xml
  silent xmllint --noout "$content"/usr/share/mime/packages/*.xml "$content"/usr/share/metainfo/*.xml
  rm -rf "$packages/debian/mime" && cp -r "$content/usr/share/mime" "$packages/debian/mime"
  XDG_DATA_HOME=$packages/debian silent update-mime-database "$packages/debian/mime"
  local page
  for page in "$content"/usr/share/man/man1/*; do silent pageOf "$page"; done
  [ "$said" = 0 ] || { say "FAILED: the package is not as it should be"; return 1; }
  say "$package"
}

# The newest change of what goes into a package: all its time stamps.
sourceTime() { dpkg-parsechangelog -l "$root/packaging/debian/changelog" -S Timestamp; }

packWindows() {
  "$root/scripts/packages.sh" windows installer
  SOURCE_DATE_EPOCH=$(sourceTime)
  export SOURCE_DATE_EPOCH
  local target
  for target in x86_64 i686; do packWindowsTarget $target; done
}

# removalOf FOLDER: the installer's lines that delete just the files in it.
removalOf() {
  find "$1" -type f -printf '%P\n' | LC_ALL=C sort | sed -e 's|/|\\|g' -e 's|.*|Delete "$INSTDIR\\&"|'
  find "$1" -mindepth 1 -type d -printf '%P\n' | LC_ALL=C sort -r | sed -e 's|/|\\|g' -e 's|.*|RMDir "$INSTDIR\\&"|'
}

packWindowsTarget() {
  local target=$1 version bits=32 stub=x86-unicode toolkit folder
  [ "$target" = x86_64 ] && bits=64 stub=amd64-unicode
  version=$(cat "$root/VERSION")
  toolkit=$("$root/scripts/windows-toolkit.sh" "$target")
  export "TARNWICK_TOOLKIT_${target^^}=$toolkit"
  build "windows-$target" Tarnwick -- "TARNWICK_TOOLKIT=$toolkit" TARNWICK_TEST_FLOORS=
  folder=$packages/windows-$target/Tarnwick
  rm -rf "$folder" && mkdir -p "$folder"
  "$target-w64-mingw32-strip" -o "$folder/Tarnwick.exe" "$root/build/windows-$target/Tarnwick.exe"
  cp "$root/guide/"* "$folder"
  sed 's/$/\r/' "$root/LICENSE" >"$folder/LICENSE.txt"
  local name=$packages/tarnwick-$version-windows-$bits
  rm -f "$name.zip" "$name-setup.exe"
  "$root/scripts/same-zip.py" "$folder" "$name.zip" "$SOURCE_DATE_EPOCH"
  find "$folder" -exec touch -h -d "@$SOURCE_DATE_EPOCH" {} +
  removalOf "$folder" >"$packages/removal-$target.nsh"
  quietly "$packages/installer-$target.log" makensis -V2 "-XTarget $stub" "-DVERSION=$version" "-DSOURCE=$folder" \
    "-DREMOVAL=$packages/removal-$target.nsh" "-DICON=$root/build/windows-$target/resources/Tarnwick.ico" "-DOUTPUT=$name-setup.exe" "$root/packaging/windows/installer.nsi"
  say "$name.zip"
  say "$name-setup.exe"
}

checkWindows() {
  local name
  name=$(echo "$packages"/tarnwick-*-windows-64.zip)
  "$root/scripts/packages.sh" windows
  rm -rf "$packages/wine"
  exec "$root/scripts/with-display.sh" "$root/scripts/with-wine.sh" "$packages/wine" "$root/tests/package/check-windows.sh" \
    "${name%.zip}-setup.exe" "$name"
}

# expectSame FILE OTHER: fails unless they are the same, byte for byte.
expectSame() {
  cmp -- "$1" "$2" >&2 || { say "FAILED: $(basename "$1") differs when it is built again"; return 1; }
  say "same: $(basename "$1")"
}

# Another folder, with a blank in its name, another time of day, other rights of new files; each source is compiled anew.
buildAgain() {
  local again="$packages/built again" file
  rm -rf "$again"
  export CCACHE_DISABLE=1 TZ=Pacific/Kiritimati
  umask 027
  say "Building the Debian package again ..."
  "$root/scripts/packages.sh" deb
  expectSame "$(ls "$packages"/tarnwick_*.deb)" "$(debianPackageIn "$again/debian")"
  say "Building for Windows again ..."
  sourcesIn "$again/elsewhere"
  "$again/elsewhere/package.sh" windows
  for file in "$packages"/tarnwick-*-windows-*; do
    expectSame "$file" "$again/elsewhere/build/packages/$(basename "$file")"
  done
  rm -rf "$again"
  say "the same bytes, built twice"
}

case ${1:-} in
  windows) packWindows ;;
  check-windows) checkWindows ;;
  deb) packDebian ;;
  check-deb) "$root/scripts/packages.sh" deb && exec "$root/tests/package/check.sh" "$packages"/tarnwick_*.deb ;;
  same) buildAgain ;;
  *) say "usage: package.sh deb|check-deb|windows|check-windows|same"; exit 2 ;;
esac
