#!/usr/bin/env bash
# What can be told of a program for Windows without starting it.
# usage: scripts/check-windows-program.sh x86_64|i686 PROGRAM
set -euo pipefail
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
expect tellsItsVersion "$(has '^1 VERSIONINFO' "$resources" && has 'VALUE "ProductVersion"' "$resources" ||
  echo "no version information")"

# A UTF-8 code page would change the program's character set and leave the JDK's tools with theirs.
manifest=$(sed -n '/RT_MANIFEST/,$p' <<<"$resources")
expect asksForTheModernControls "$(has 'Microsoft.Windows.Common-Controls' "$manifest" || echo "not in the manifest")"
expect keepsTheSystemsCharacterSet "$(! has 'activeCodePage' "$manifest" || echo "the manifest names a code page")"

echo "$passed passed, $failed failed, 0 skipped"
[ "$failed" = 0 ]
