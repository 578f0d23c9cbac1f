#!/usr/bin/env bash
# What can be told of a program for Windows without starting it.
# usage: scripts/check-windows-program.sh x86_64|i686 PROGRAM
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
target=$1 program=$2
passed=0 failed=0

# expect NAME MESSAGE: passes if there is nothing to say.
expect() {
  local name=WindowsProgram.$target.$1
  echo "[ RUN      ] $name"
  if [ -z "$2" ]; then
    echo "[       OK ] $name"
    passed=$((passed + 1))
  else
    echo "$2"
    echo "[  FAILED  ] $name"
    failed=$((failed + 1))
  fi
}

headers=$("$target-w64-mingw32-objdump" -f -p "$program")
resources=$("$target-w64-mingw32-windres" -J coff -O rc "$program")
has() { grep -qi -- "$1" <<<"$2"; }

case $target in x86_64) format=pei-x86-64 ;; *) format=pei-i386 ;; esac
expect isBuiltForTheTarget "$(has "file format $format\$" "$headers" || echo "not of the format $format")"
expect opensNoConsoleOfItsOwn "$(has '^Subsystem.*(Windows GUI)' "$headers" || echo "not of the subsystem for windows")"

# It must run from one file: it may import no library but the system's own.
own='(advapi32|comctl32|comdlg32|gdi32|gdiplus|kernel32|msimg32|msvcrt|ole32|oleacc|oleaut32|rpcrt4|shell32|shlwapi|user32|uxtheme|version|wininet|winmm|winspool\.drv|ws2_32)(\.dll)?'
imports=$(sed -n 's/^[[:space:]]*DLL Name: //p' <<<"$headers" | tr '[:upper:]' '[:lower:]' | sort -u)
strangers=$(grep -Evx "$own" <<<"${imports:-nothing is imported}" || true)
expect needsOnlyTheSystemsLibraries "${strangers:+no Windows brings along: $strangers}"

# The system shows the icon whose name comes first.
icon=$(sed -n 's|^\([^ ]*\) 14 /\* RT_GROUP_ICON \*/.*|\1|p' <<<"$resources" | head -n 1)
expect showsItsOwnIcon "$([ "$icon" = '"ATARNWICK"' ] || echo "the first icon is ${icon:-none}")"
# The large one is a PNG picture, whose header tells its size.
large='import sys; sys.exit(b"\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\1\0\0\0\1\0" not in open(sys.argv[1], "rb").read())'
expect hasALargeIcon "$(python3 -c "$large" "$program" || echo "no icon of 256 pixels")"

untold=
for name in CompanyName FileDescription FileVersion InternalName LegalCopyright OriginalFilename ProductName ProductVersion; do
  has "VALUE \"$name\"" "$resources" || untold+=" $name"
done
has '^1 VERSIONINFO' "$resources" || untold=" all of it"
expect tellsAllOfItself "${untold:+no version information:$untold}"
version=$(cat "$root/VERSION")
expect tellsItsVersion "$(has "VALUE \"FileVersion\",* \"$version\"" "$resources" &&
  has "VALUE \"ProductVersion\",* \"$version\"" "$resources" || echo "not the version $version")"

texts=$(strings -a "$program")
manifest=$(sed -n '/<assembly/,/<\/assembly>/p' <<<"$texts")
expect asksForTheModernControls "$(has 'name="Microsoft.Windows.Common-Controls" version="6.0.0.0"' "$manifest" ||
  echo "not in the manifest")"
expect isSharpOnEveryScreen "$(has '>PerMonitorV2, PerMonitor<' "$manifest" || echo "not in the manifest")"
unknown=
# Windows 7, 8, 8.1, and 10 with what came after it.
for system in 35138b9a-5d96-4fbd-8e2d-a2440225f93a 4a2f28e3-53b9-4441-ba9c-d69d4a4a6e38 \
  1f676c76-80e1-4239-95bb-83d0f6d0da78 8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a; do
  has "<supportedOS Id=\"{$system}\"/>" "$manifest" || unknown+=" $system"
done
expect knowsTheSystemsItRunsOn "${unknown:+not in the manifest:$unknown}"
# A UTF-8 code page would change the program's character set and leave the JDK's tools with theirs.
expect keepsTheSystemsCharacterSet "$(! has 'activeCodePage' "$manifest" || echo "the manifest names a code page")"

# Neither from our sources nor from the toolkit's.
paths=$(grep -F -e "$root/" -e "${XDG_CACHE_HOME:-$HOME/.cache}/" -e "${TMPDIR:-/tmp}/" -e "$HOME/" <<<"$texts" | sort -u | head -n 5 || true)
expect holdsNoPathOfTheBuildingMachine "${paths:+it names $paths}"
guards=$("$target-w64-mingw32-objdump" -d "$program" | grep -c 'call.*<_*stack_chk_fail>' || true)
expect guardsItsStack "$([ "$guards" -gt 500 ] || echo "only $guards functions would notice an overrun")"

echo "$passed passed, $failed failed, 0 skipped"
[ "$failed" = 0 ]
