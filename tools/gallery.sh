#!/usr/bin/env bash
# Takes a picture of every drawn control in every state: gallery.sh picture.png [scale [grids|scroll]]
# The scale is that of the screen, 1.0 for 96 dots an inch; "grids" pictures the grids, "scroll" the
# scroll bars, which are the same on every screen.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
if [ $# -eq 0 ]; then
  echo "usage: gallery.sh picture.png [scale [grids|scroll]]" >&2
  exit 2
fi
picture=$(realpath -m "$1")
scale=${2:-1.0}
page=${3:-}
screen=2000x1300

[ -f "$build/mingw/build.ninja" ] || (cd "$root" && cmake --preset linux-mingw >/dev/null)
cmake --build "$build/mingw" --target gallery skin_art

virtual_display "$screen"
prepare_wine
# Debian's own name first: what is called import may be something else.
import=$(command -v import-im6.q16 || command -v import)

cd "$build/bin"
wine "$build/mingw/tools/gallery/gallery.exe" "$scale" $page >/dev/null 2>&1 </dev/null &

# Ready when two pictures in a row are equal, and are not of the bare screen.
before=
for _ in $(seq 60); do
  sleep 2
  "$import" -window root "$picture"
  now=$(md5sum <"$picture")
  colours=$(identify -format %k "$picture")
  [ "$now" = "$before" ] && [ "$colours" -gt 50 ] && exit 0
  before=$now
done
echo "gallery: the window does not come to rest" >&2
exit 1
