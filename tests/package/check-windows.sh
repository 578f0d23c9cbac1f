#!/usr/bin/env bash
# Installs, starts and uninstalls the program for Windows under Wine; the user's settings stay.
# usage: scripts/with-display.sh scripts/with-wine.sh PREFIX tests/package/check-windows.sh INSTALLER ARCHIVE
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/../../scripts/common.sh"
installer=$1 archive=$2

failed() { say "FAILED: $*"; exit 1; }
wine() { timeout 120 "$WINE" "$@" </dev/null; }
registry() { wine reg query "$@" 2>/dev/null | tr -d '\r'; }
# The system's own place of a folder, as Linux sees it.
place() { printf '%s/dosdevices/c:%s' "$WINEPREFIX" "$(wine cmd /c "echo %$1%" | tr -d '\r' | sed 's/^.://' | tr '\\' '/')"; }

folder=$(place LOCALAPPDATA)/Programs/Tarnwick
menu="$(place APPDATA)/Microsoft/Windows/Start Menu/Programs/Tarnwick.lnk"
before=$(registry 'HKCU\Software\Classes\.java' || true)

wine "$installer" /S || failed "the installer ended with $?"
for file in Tarnwick.exe usersguide.htm guide-panel.png LICENSE.txt Uninstall.exe; do
  [ -f "$folder/$file" ] || failed "$file is not installed"
done
[ -f "$menu" ] || failed "nothing stands in the start menu"
registry 'HKCU\Software\Classes\Applications\Tarnwick.exe\SupportedTypes' | grep -q '\.twp' || failed "projects can't be opened with it"
[ "$(registry 'HKCU\Software\Classes\.java' || true)" = "$before" ] || failed "it has seized .java"
[ "$(wine "$folder/Tarnwick.exe" --version | tr -d '\r')" = "Tarnwick V4.7a" ] || failed "it does not tell its version"
# The names of the user's own files may look like those that the installer brings.
for own in Tarnwickdefault.CFG guide-mine.png notes.htm; do echo "the user's" >"$folder/$own"; done

wine "$folder/Uninstall.exe" /S "_?=$(wine winepath -w "$folder" | tr -d '\r')" || failed "the uninstaller ended with $?"
# In this form the uninstaller can't delete itself.
rm -f "$folder/Uninstall.exe"
[ "$(LC_ALL=C ls "$folder" | tr '\n' ' ')" = "Tarnwickdefault.CFG guide-mine.png notes.htm " ] ||
  failed "not just the user's files are left: $(ls "$folder")"
[ ! -e "$menu" ] || failed "it still stands in the start menu"
for key in 'HKCU\Software\Tarnwick' 'HKCU\Software\Classes\Applications\Tarnwick.exe' \
  'HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarnwick'; do
  registry "$key" >/dev/null && failed "$key stays"
done
say "installed, started and uninstalled; the user's files stay"

unpacked=$(mktemp -d)
trap 'rm -rf "$unpacked"' EXIT
python3 -m zipfile -e "$archive" "$unpacked"
[ "$(wine "$unpacked/Tarnwick/Tarnwick.exe" --version | tr -d '\r')" = "Tarnwick V4.7a" ] || failed "the archive's program does not tell its version"
[ -f "$unpacked/Tarnwick/usersguide.htm" ] || failed "the archive has no guide"
[ "$(x86_64-w64-mingw32-objdump -t "$unpacked/Tarnwick/Tarnwick.exe" | grep -c 'no symbols')" = 1 ] ||
  failed "the program is not stripped"
say "unpacked and started"
