#!/usr/bin/env bash
# Draws who includes whom into docs/for-maintainers.md; with --check fails when the picture there is
# out of date. Fails as well when two rooms include each other, directly or over others.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
document=docs/for-maintainers.md
export LC_ALL=C # for one order on every machine

# Every include between two rooms as "from to". Three folders have two floors: what stands above the
# pages, and what the pages stand on.
includes() {
  git ls-files -co --exclude-standard -- '*.h' '*.cpp' ':!tests' ':!bench' ':!tools' ':!docs' |
    sort -u | xargs -r grep -HoE '^#include ["<][^">]+' |
    awk -F ':#include ["<]' '
      function room(path) {
        if (path ~ /^core\/Zorvane/) return "core/exports"
        if (path ~ /^frame\/SubMainDlg/) return "frame/SubMainDlg"
        if (path ~ /^pages\/(.*MainDlg|TabHostDlg)/) return "pages/hosts"
        if (path ~ /^(mfc\/|afx)/) return "mfc"
        if (path ~ /^(include\/)?zorvane\//) return "include"
        return sub(/\/[^\/]*$/, "", path) ? path : ""
      }
      { from = room($1); to = room($2) }
      to != "" && from != to { print from, to }' | sort -u
}

# Leaves out what follows from other arrows.
picture() {
  awk '
    function node(name, id) {
      id = name
      return sub("/", "_", id) ? id "[\"" name "\"]" : name
    }
    { arrow[$1, $2] = reach[$1, $2] = 1; room[$1]; room[$2]; line[++lines] = $0 }
    END {
      for (via in room) for (from in room) for (to in room)
        if (reach[from, via] && reach[via, to]) reach[from, to] = 1
      for (name in room) if (reach[name, name]) {
        print "house-picture: " name " includes itself over other rooms" > "/dev/stderr"
        exit 1
      }
      print "graph TD"
      for (i = 1; i <= lines; ++i) {
        split(line[i], end, " ")
        isNeeded = 1
        for (via in room) if (reach[end[1], via] && reach[via, end[2]]) isNeeded = 0
        if (isNeeded) print "    " node(end[1]) " --> " node(end[2])
      }
    }'
}

drawn=$(includes | picture)
current=$(awk -v drawn="$drawn" '
  /^```mermaid/ { print; print drawn; inside = 1; next }
  /^```/ { inside = 0 }
  !inside { print }' "$document")
if [ "${1:-}" != --check ]; then
  printf '%s\n' "$current" >"$document"
elif [ "$current" != "$(<"$document")" ]; then
  echo "$document: the picture is out of date, run tools/house-picture.sh" >&2
  exit 1
fi
