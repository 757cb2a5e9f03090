#!/usr/bin/env bash
# Builds, opens the settings window in the sample client, and prints what it stored. Without a
# display it works the window itself on a virtual one and leaves pictures in build/pictures.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/tools/common.sh"
cd "$root"
tools/build.sh
prepare_wine

if [ -n "${DISPLAY:-}" ]; then
  cd "$build/bin"
  exec "$root/tools/wine.sh" ZorvaneHost.exe "$@"
fi

virtual_display
mkdir -p "$build/pictures"
cd "$build/bin"
"$root/tools/wine.sh" ZorvaneHost.exe --session '..\pictures' "$@"
cd "$build/pictures"
magick=$(find_magick)
for picture in *.bmp; do
  "$magick" "$picture" "${picture%.bmp}.png"
  rm -f "$picture"
done
echo "pictures: build/pictures/"
