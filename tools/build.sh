#!/usr/bin/env bash
# Builds the module, its tests and the sample host for 32-bit Windows. The finished files land in
# build/bin; a second call with nothing changed takes seconds.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
cd "$root"
tools/setup.sh
tools/check-format.sh
tools/check-duplicates.sh
[ -f "$build/mingw/build.ninja" ] || cmake --preset linux-mingw >/dev/null
cmake --build "$build/mingw"
