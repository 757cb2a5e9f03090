#!/usr/bin/env bash
# Takes a picture of every page, with and without its optional blocks, and of what comes up over the
# window, at several scales and with two fonts, and checks each for clipped texts and for controls that
# stand on one another:
#   pictures.sh [scale ...]      all of 1.0 1.25 1.5 2.0 unless some are named
# The pictures land in build/pictures/<scale>-<font>/.
set -euo pipefail
# A Wine prefix of its own: scale and fonts are settings of the whole system.
export ZORVANE_PREFIX="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/build/wine-pictures"
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
scales=("$@")
[ $# -gt 0 ] || scales=(1.0 1.25 1.5 2.0)
# The first has the measures of the fonts that Windows has, the second is a quarter larger.
fonts=("AR PL UMing CN" "WenQuanYi Zen Hei")

cd "$root"
tools/setup.sh
[ -f "$build/mingw/build.ninja" ] || cmake --preset linux-mingw >/dev/null
programs=(layout_tests wizard_tests)
cmake --build "$build/mingw" --target "${programs[@]}"

prepare_wine
virtual_display 2800x2000
magick=$(find_magick)

set_screen() { # font scale
  local dots
  dots=$(awk "BEGIN { print 96 * $2 }")
  { printf '\xff\xfe'
    { sed "s/AR PL UMing CN/$1/" tools/wine.reg
      printf '"LogPixels"=dword:%08x\r\n' "$dots"; } | iconv -f UTF-8 -t UTF-16LE
  } >"$WINEPREFIX/screen.reg"
  wine regedit /S "$WINEPREFIX/screen.reg" >/dev/null 2>&1
  wineserver -k || true
  wineserver -w
}

to_png() { # folder
  local picture
  for picture in "$1"/*.bmp; do
    "$magick" "$picture" "${picture%.bmp}.png"
    rm -f "$picture"
  done
}

status=0
for scale in "${scales[@]}"; do
  for font in "${fonts[@]}"; do
    folder=$build/pictures/$scale-${font// /-}
    mkdir -p "$folder"
    set_screen "$font" "$scale"
    for program in "${programs[@]}"; do
      (cd "$build/mingw/tests/window/$program.run" &&
        ZORVANE_PICTURES=$(winepath -w "$folder" 2>/dev/null) "$root/tools/wine.sh" "$program.exe") ||
        status=1
    done
    to_png "$folder"
  done
done
exit $status
