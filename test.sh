#!/usr/bin/env bash
# Installs what is missing, builds, runs all tests. Ends with the test runner's closing line.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/tools/common.sh"
cd "$root"
tools/build.sh

for preset in linux-native linux-fuzz; do
  folder="$build/${preset#linux-}"
  [ -f "$folder/build.ninja" ] || cmake --preset "$preset" >/dev/null
  cmake --build "$folder"
done

# The tests of the finished module wait for its window most of the time: they run beside the others in
# two halves, on displays and in Wine prefixes of their own, since each works the one mouse. Tests that
# use the real mouse and keyboard lose an event now and then on a busy machine: they get three tries,
# which a real fault fails as well. In the halves each failed test sees to that by itself.
run_windows_tests() { # prefix ctest-arguments
  (
    export ZORVANE_PREFIX=$1 WINEPREFIX=$1
    shift
    prepare_wine
    virtual_display
    keep_wineserver
    ctest --test-dir "$build/mingw" --no-tests=error --output-on-failure "$@"
  )
}

run_native_tests() {
  local folder
  for folder in native fuzz; do
    ctest --test-dir "$build/$folder" --no-tests=error --output-on-failure || return 1
  done
  tools/check-tidy.sh
}

mkdir -p "$build/log"
halves=(window pages)
running=()
for half in "${halves[@]}"; do
  run_windows_tests "$build/wine-$half" -L "$half" >"$build/log/$half-tests.txt" 2>&1 &
  running+=($!)
done
status=0
run_native_tests || status=1
run_windows_tests "$build/wine" -LE 'window|pages' --repeat until-pass:3 || status=1
for half in "${!halves[@]}"; do
  wait "${running[$half]}" || status=1
  cat "$build/log/${halves[$half]}-tests.txt"
done
exit $status
