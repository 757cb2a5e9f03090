#!/usr/bin/env bash
# Builds and runs the benchmarks and writes docs/benchmarks.md: ratios against what a user would have
# otherwise, taken in the same run; times alone say little about another machine.
set -euo pipefail
shopt -s inherit_errexit # a benchmark that fails leaves the old table
. "$(dirname "${BASH_SOURCE[0]}")/tools/common.sh"
cd "$root"
tools/build.sh
prepare_wine
ensure_display
keep_wineserver

rows() {
  local bench
  for bench in "$build"/mingw/bench/{,*.run/}*_bench.exe; do
    (cd "$(dirname "$bench")" && "$root/tools/wine.sh" "$bench") | tr -d '\r'
  done
}

table=$(rows)
cat >docs/benchmarks.md <<END
# Benchmarks

Milliseconds, medians of several rounds; a ratio below 1 is faster than what a user would have otherwise,
and a goal is a ratio at most. Made by \`./bench.sh\`, which runs both sides in turns in one process.
Taken on $(nproc) cores of $(sed -n 's/^model name.*: //p' /proc/cpuinfo | head -1), $(wine --version), load $(cut -d' ' -f1 /proc/loadavg).

| what | module | otherwise | takes | ratio | goal |
|---|--:|---|--:|--:|---|
$table

What takes longer than its goal does more. A save asks for the stamp of the file at every key, since another
program may have written meanwhile, and replaces the file as a whole at every changed one. The module brings
a second DLL, and its start reads six texts and three bitmaps: the second row of its load is the least that
this takes.
END
sed -n '/^|/p' docs/benchmarks.md
