#!/usr/bin/env bash
# Fails when the documents fall behind: a link that leads nowhere, a shipped setting of which deployers
# are not told, a picture of the house that is out of date. With the folder of an unpacked package
# only its links are looked at.
set -euo pipefail
cd "${1:-$(dirname "${BASH_SOURCE[0]}")/..}"
status=0

blame() { # message
  echo "check-docs: $1" >&2
  status=1
}

# document:link, one a line. Finding none is a failure, here and below: then this script is out of date.
links() {
  find . -name build -prune -o -name '*.md' -print0 |
    xargs -0 grep -HoE '\]\([^)#]+' | sed 's/:\](/:/'
}

# Sections, keys and texts that the module reads from files which it does not write, quoted.
shipped_names() {
  grep -ohE '"[A-Za-z]{2,}"' pages/ShippedSettings.cpp &&
    grep -ohE '"[^"]+提示"' pages/PublicConditionModeDlg.cpp &&
    find core frame hotkeys pages skin -name '*.cpp' -print0 |
    xargs -0 grep -hozE 'GetPrivateProfile\w+\(\s*"[^"]+",\s*"[^"]+"' |
      grep -aoE '"[^"]+"'
}

if found=$(links); then
  while IFS=: read -r document link; do
    [[ $link == http* || -e $(dirname "$document")/$link ]] || blame "$document: no $link"
  done <<<"$found"
else
  blame "no document with a link was found"
fi

if [ $# -eq 0 ]; then
  if found=$(shipped_names); then
    while IFS= read -r name; do
      grep -qF "\`${name//\"/}\`" docs/for-deployers.md || blame "docs/for-deployers.md: no $name"
    done < <(sort -u <<<"$found")
  else
    blame "the sources name no shipped settings where they are looked for"
  fi
  tools/house-picture.sh --check || status=1
fi
exit $status
