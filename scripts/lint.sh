#!/usr/bin/env bash
# Checks the form of our own code: clang-format over all of it, then clang-tidy over what is built on Linux.
# usage: scripts/lint.sh             clang-tidy over everything
#        scripts/lint.sh --recent    only over what the last thirty commits touched
#        scripts/lint.sh --format    clang-format alone
#        scripts/lint.sh FILE...     only over these files
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

"$root/scripts/packages.sh" lint
cd "$root"
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run -Werror
say "clang-format: clean"
[ "${1:-}" = --format ] && exit

# What clang-tidy is given: sources alone, since each brings its headers along.
sourcesOf() { git ls-files -- 'src/*.cpp' 'tests/*.cpp' | grep -v /win32/ | sort; }
recentFiles() { git log -30 --name-only --format= | sort -u; }

case ${1:-} in
  '') mapfile -t files < <(sourcesOf) ;;
  --recent) mapfile -t files < <(comm -12 <(sourcesOf) <(recentFiles)) ;;
  *) files=("$@") ;;
esac
# Without precompiled headers, which clang-tidy can't read when another compiler made them.
quietly build/lint/configure.log cmake --preset linux -B build/lint -DCMAKE_CXX_COMPILER=clang++ \
  -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON
[ ${#files[@]} = 0 ] || printf '%s\0' "${files[@]}" | xargs -0 -n 1 -P "$cores" clang-tidy -quiet -p build/lint 2>/dev/null
say "clang-tidy: clean, ${#files[@]} files"
