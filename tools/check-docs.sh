#!/usr/bin/env bash
# Fails when the documents fall behind: a link that leads nowhere, a shipped setting of which deployers
# are not told, a picture of the house that is out of date. With the folder of an unpacked package
# only its links are looked at.
set -euo pipefail
cd "${1:-$(dirname "${BASH_SOURCE[0]}")/..}"
status=0

while IFS=: read -r document link; do
  [[ $link == http* ]] && continue
  if [ ! -e "$(dirname "$document")/$link" ]; then
    echo "$document: no $link" >&2
    status=1
  fi
done < <(find . -name build -prune -o -name '*.md' -print |
  xargs grep -HoE '\]\([^)#]+' | sed 's/:\](/:/')

if [ $# -eq 0 ]; then
  for name in $(grep -ohE '"[A-Za-z]{2,}"' pages/ShippedSettings.cpp | tr -d '"' | sort -u); do
    if ! grep -q "\`$name\`" docs/for-deployers.md; then
      echo "docs/for-deployers.md: no $name" >&2
      status=1
    fi
  done
  tools/house-picture.sh --check || status=1
fi
exit $status
