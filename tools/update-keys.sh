#!/usr/bin/env bash
# Makes the packaged defaults and docs/keys.md anew from the key table.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
cd "$root"
[ -f "$build/native/build.ninja" ] || cmake --preset linux-native >/dev/null
cmake --build "$build/native" --target keys_report
"$build/native/tests/core/keys_report" "$root"
