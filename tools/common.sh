# Sourced by the commands: where things are, and the environment in which Windows programs run.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build

export WINEPREFIX="${ZORVANE_PREFIX:-$build/wine}"
export WINEARCH=win32
export WINEDEBUG=${WINEDEBUG:--all}
# No menu entries either, which would land in the home folder of whoever calls.
export WINEDLLOVERRIDES="mscoree,mshtml,winemenubuilder.exe="
# Code page 936: without it no Chinese text or file name works.
export LC_ALL=zh_CN.UTF-8

# Makes the Wine prefix of the build folder once: fonts that stand for the ones Windows has, no
# window manager, whose absence costs two seconds a window, and no long wait until a second click is
# no double click any more.
prepare_wine() {
  [ -f "$WINEPREFIX/zorvane-ready" ] && return
  mkdir -p "$WINEPREFIX"
  wineboot -i >/dev/null 2>&1
  local settings="$WINEPREFIX/zorvane.reg"
  # UTF-16 with a byte order mark, as the registry editor reads names that are not ASCII.
  { printf '\xff\xfe'; iconv -f UTF-8 -t UTF-16LE "$root/tools/wine.reg"; } >"$settings"
  wine regedit /S "$settings" >/dev/null 2>&1
  wineserver -w
  touch "$WINEPREFIX/zorvane-ready"
}

# A Wine server that stays: it saves two seconds a program.
keep_wineserver() {
  wineserver -p 2>/dev/null || true
}

# Starts a virtual display unless one is there, and ends it with the script.
ensure_display() {
  [ -n "${DISPLAY:-}" ] && return
  virtual_display
}

virtual_display() { # [size]
  local number_file
  number_file=$(mktemp)
  Xvfb -displayfd 3 -screen 0 "${1:-1400x1000}x24" -nolisten tcp 3>"$number_file" 2>/dev/null &
  xvfb_pid=$!
  trap stop_display EXIT
  for _ in $(seq 100); do
    [ -s "$number_file" ] && break
    sleep 0.1
  done
  [ -s "$number_file" ] || { echo "the virtual display did not come up" >&2; exit 1; }
  DISPLAY=:$(cat "$number_file")
  export DISPLAY
  rm -f "$number_file"
}

stop_display() {
  wineserver -k 2>/dev/null || true
  kill "$xvfb_pid" 2>/dev/null || true
}

# ImageMagick's converter. Debian's own name first: what is called convert may be something else.
find_magick() {
  local name
  for name in convert-im6.q16 magick convert; do
    if "$name" -version 2>/dev/null | grep -q ImageMagick; then
      echo "$name"
      return
    fi
  done
  echo "ImageMagick is missing" >&2
  return 1
}
