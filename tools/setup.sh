#!/usr/bin/env bash
# Installs what the build and the tests need and this machine lacks. Debian 12, as root or with
# sudo. Says what it does; does nothing where nothing is missing.
set -euo pipefail

packages=(
  g++ g++-mingw-w64-i686-posix cmake ninja-build googletest
  clang clang-format clang-tidy lld llvm
  wine wine32:i386 xvfb locales fonts-arphic-uming fonts-wqy-zenhei imagemagick
)

missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done
locale -a 2>/dev/null | grep -qi '^zh_CN\.utf-\?8$' && has_locale=yes || has_locale=no

if [ ${#missing[@]} -eq 0 ] && [ $has_locale = yes ]; then
  exit 0
fi

as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

if [ ${#missing[@]} -gt 0 ]; then
  echo "setup: installing ${missing[*]}"
  export DEBIAN_FRONTEND=noninteractive
  as_root dpkg --add-architecture i386
  # A mirror whose i386 security index lags behind makes this fail, and the install below with
  # it unless apt is told the release: then it takes versions that both architectures have.
  as_root apt-get update || true
  . /etc/os-release
  as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y --no-install-recommends -t "$VERSION_CODENAME" "${missing[@]}"
fi

if [ $has_locale = no ]; then
  # Wine takes the code page from the locale; every Chinese text rests on code page 936.
  echo "setup: generating the locale zh_CN.UTF-8"
  as_root localedef -i zh_CN -f UTF-8 zh_CN.UTF-8
fi
