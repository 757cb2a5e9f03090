#!/usr/bin/env bash
# Makes the package and unpacks it outside the tree; builds the example client against it, by GCC and
# for the Visual C++ ABI, and runs both.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
"$root/tools/package.sh"
prepare_wine

# A compiler cache that the developer may have set does not know the arguments of the second compiler.
unset CMAKE_CXX_COMPILER_LAUNCHER

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
cmake -E tar xf "$(ls -t "$build"/zorvane-*.zip | head -1)"
package=$(echo "$folder"/zorvane-*)
example=$package/docs/example

configure() { # build-folder cmake-arguments...
  cmake -S "$example" -B "$@" -G Ninja -DCMAKE_SYSTEM_NAME=Windows -DCMAKE_BUILD_TYPE=Release \
    "-DCMAKE_PREFIX_PATH=$package"
}

# Stands in for the Visual C++ SDK: the few declarations and import libraries that the example needs,
# and clang under the name by which it takes that compiler's arguments.
make_sdk() {
  cp "$root"/tests/package/sdk/* .
  ln -s "$(command -v clang++)" clang-cl
  local library
  for library in kernel32 msvcrt; do
    llvm-dlltool -m i386 -k -d "$library.def" -l "$library.lib"
  done
  ./clang-cl --target=i686-pc-windows-msvc /c /GS- Startup.cpp /FoStartup.obj
}

run() { # program
  local said file=Cfg/Trade/TradePackageConfig.ini
  said=$("$root/tools/wine.sh" "$1")
  echo "$said"
  grep -q '^iLockScreen=25' <<<"$said"
  grep -q '^iLockScreen=25' "$(dirname "$1")/$file"
  # Whatever the example did not read would be stored as 0.
  awk -F= '
    NR == FNR { packaged[$1] = $2; next }
    $1 in packaged && $1 != "iLockScreen" && packaged[$1] != $2 { print "stored " $0; lost = 1 }
    END { exit lost }' "$package/bin/Sys/$file" "$(dirname "$1")/$file"
}

"$root/tools/check-docs.sh" "$package"

echo "-- GCC"
configure gcc -DCMAKE_CXX_COMPILER=i686-w64-mingw32-g++-posix \
  -DCMAKE_CXX_FLAGS='-Wall -Wextra -Werror' -DCMAKE_EXE_LINKER_FLAGS=-static >/dev/null
cmake --build gcc
run gcc/SmallClient.exe

echo "-- Visual C++ ABI"
mkdir sdk
(cd sdk && make_sdk)
configure visual-cpp "-DCMAKE_CXX_COMPILER=$folder/sdk/clang-cl" \
  -DCMAKE_CXX_COMPILER_TARGET=i686-pc-windows-msvc -DCMAKE_TRY_COMPILE_TARGET_TYPE=STATIC_LIBRARY \
  "-DCMAKE_CXX_FLAGS=-imsvc $folder/sdk /clang:-ffreestanding /GS- /W4 /WX" \
  "-DCMAKE_EXE_LINKER_FLAGS=/manifest:no /nodefaultlib /safeseh:no /libpath:$folder/sdk" \
  "-DCMAKE_CXX_STANDARD_LIBRARIES=$folder/sdk/Startup.obj kernel32.lib msvcrt.lib" >/dev/null
cmake --build visual-cpp
run visual-cpp/SmallClient.exe

echo "-- 64 bits are refused"
if cmake -S "$example" -B wide -G Ninja "-DCMAKE_PREFIX_PATH=$package" >wide.txt 2>&1; then
  exit 1
fi
grep 'version: .*(32bit)' wide.txt
