#!/usr/bin/env bash
# Runs clang-tidy over the code that needs no window; .clang-tidy tells what it looks for.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
cd "$root"
[ -f "$build/fuzz/compile_commands.json" ] || cmake --preset linux-fuzz >/dev/null
# What headers of the system and of the tests' library have to say is not counted.
run-clang-tidy -quiet -p "$build/fuzz" "$root/(core|hotkeys|iniwarden|pages|skin)/.*\.cpp" \
  >"$build/tidy.txt" 2>&1 && exit 0
grep -E 'warning:|error:' -A3 "$build/tidy.txt" || tail "$build/tidy.txt"
exit 1
