#!/usr/bin/env bash
# Builds, and makes build/zorvane-<version>.zip: all that a client's programmers and deployers need.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
cd "$root"
tools/build.sh

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/mingw/CMakeCache.txt")
name=zorvane-$version
rm -rf "$build/package"
cmake --install "$build/mingw" --prefix "$build/package/$name" >/dev/null

cd "$build/package"
find "$name" -type f | LC_ALL=C sort >files.txt
cmake -E tar cf "$build/$name.zip" --format=zip --files-from=files.txt
echo "package: build/$name.zip"
