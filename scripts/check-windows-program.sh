#!/usr/bin/env bash
# A program for Windows must run from one file: it may import no library but the system's own.
# usage: scripts/check-windows-program.sh x86_64|i686 PROGRAM
set -euo pipefail
target=$1 program=$2
own='^(advapi32|comctl32|comdlg32|gdi32|gdiplus|kernel32|msimg32|msvcrt|ole32|oleacc|oleaut32|rpcrt4|shell32|shlwapi|user32|uxtheme|version|wininet|winmm|winspool\.drv|ws2_32)(\.dll)?$'

echo "[ RUN      ] WindowsProgram.$target.needsOnlyTheSystemsLibraries"
format=$("$target-w64-mingw32-objdump" -f "$program" | sed -n 's/.*file format //p')
imports=$("$target-w64-mingw32-objdump" -p "$program" | sed -n 's/^[[:space:]]*DLL Name: //p' | tr '[:upper:]' '[:lower:]' | sort -u)
strangers=$(grep -Evx "$own" <<<"$imports" || true)
case $target in x86_64) expected=pei-x86-64 ;; *) expected=pei-i386 ;; esac
if [ "$format" = "$expected" ] && [ -n "$imports" ] && [ -z "$strangers" ]; then
  echo "[       OK ] WindowsProgram.$target.needsOnlyTheSystemsLibraries"
  echo "1 passed, 0 failed, 0 skipped"
else
  echo "format: $format, expected $expected; libraries that no Windows brings along: ${strangers:-none}"
  echo "[  FAILED  ] WindowsProgram.$target.needsOnlyTheSystemsLibraries"
  echo "0 passed, 1 failed, 0 skipped"
  exit 1
fi
