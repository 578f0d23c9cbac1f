#!/usr/bin/env bash
# Checks the form of our own code: clang-format, then clang-tidy over all that is built on Linux.
# usage: scripts/lint.sh [FILE...]     with files, only those are given to clang-tidy
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

for tool in clang-format clang-tidy clang++; do
  command -v $tool >/dev/null || { say "lint.sh: $tool is missing (Debian: clang clang-format clang-tidy)"; exit 1; }
done
cd "$root"
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run -Werror
say "clang-format: clean"

# Without precompiled headers, which clang-tidy can't read when another compiler made them.
quietly build/lint/configure.log cmake --preset linux -B build/lint -DCMAKE_CXX_COMPILER=clang++ \
  -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON
if [ $# -gt 0 ]; then files=("$@"); else
  mapfile -t files < <(git ls-files 'src/*.cpp' 'tests/*.cpp' | grep -v /win32/)
fi
printf '%s\0' "${files[@]}" | xargs -0 -n 1 -P "$cores" clang-tidy -quiet -p build/lint 2>/dev/null
say "clang-tidy: clean"
