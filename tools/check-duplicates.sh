#!/usr/bin/env bash
# Fails when the same lines stand in two places: ten in a row that say something, whatever their
# indentation. Blank lines, lone braces, includes and comments say nothing here.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
git ls-files -co --exclude-standard '*.cpp' '*.h' | LC_ALL=C sort | xargs awk -v run=10 '
  FNR == 1 { count = 0 }
  {
    line = $0
    gsub(/[ \t\r]+/, " ", line)
    sub(/^ /, "", line)
    if (line ~ /^(\/\/.*|#.*|[{}() ;]*)$/ || line ~ /^(public|private|protected):$/) next
    text[count % run] = line
    at[count % run] = FNR
    if (++count < run) next
    window = ""
    for (i = count - run; i < count; ++i) window = window "\n" text[i % run]
    place = FILENAME ":" at[count % run]
    if (window in seen) {
      if (FILENAME != lastFile || FNR > lastEnd + 1) {
        print place " repeats " seen[window]
        found = 1
      }
      lastFile = FILENAME
      lastEnd = FNR
    } else
      seen[window] = place
  }
  END { exit found }'
