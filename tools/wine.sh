#!/usr/bin/env bash
# Runs a Windows program in the environment of the tests: wine.sh program.exe [arguments]
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
prepare_wine

# Wine's own services start with the first program and outlive it. They would hold a caller's pipe
# open, and the caller would wait for them: so the output goes to a file, which stays to be read
# when a program had to be ended.
mkdir -p "$build/log"
log="$build/log/$(basename "$1" .exe).$$.txt"
wine "$@" >"$log" 2>&1 </dev/null
status=$?
cat "$log"
[ $status -eq 0 ] && rm -f "$log"
exit $status
