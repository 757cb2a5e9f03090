#!/usr/bin/env bash
# Fails when a source is not laid out as .clang-format says; with --fix lays it out.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
mode=(--dry-run -Werror)
[ "${1:-}" = --fix ] && mode=(-i)
git ls-files -co --exclude-standard '*.cpp' '*.h' | xargs -r clang-format "${mode[@]}"
