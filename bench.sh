#!/usr/bin/env bash
# Builds and runs the benchmarks. They print ratios against what a user would have otherwise, taken
# in the same run; times alone say little about another machine.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/tools/common.sh"
cd "$root"
tools/build.sh
prepare_wine
[ -n "${DISPLAY:-}" ] || virtual_display
keep_wineserver

for bench in "$build"/mingw/bench/{,*.run/}*_bench.exe; do
  echo "== $(basename "$bench" .exe)"
  (cd "$(dirname "$bench")" && "$root/tools/wine.sh" "$bench")
done
