# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
# shellcheck shell=bash
#
# To be sourced. `need_packages PACKAGE...` sees to it that Debian packages are installed, and says nothing where
# they are. It returns 1, with the reason on standard error, where one is missing and cannot be installed.

need_packages() {
  local package missing=()
  for package in "$@"; do
    package_is_there "$package" || missing+=("$package")
  done
  if ((${#missing[@]})); then install_packages "${missing[@]}"; fi
}

# A tool may have come another way than by its package (g++ of a toolchain, cmake of pip): its command counts.
package_is_there() {
  case $1 in
    ninja-build) command -v ninja > /dev/null && return ;;
    *) command -v "$1" > /dev/null && return ;;
  esac
  [[ $(dpkg-query -W -f '${db:Status-Status}' "$1" 2> /dev/null) == installed ]]
}

install_packages() {
  local as_root=()
  if ! command -v apt-get > /dev/null; then
    echo "missing, and there is no apt-get to install them: $*" >&2
    return 1
  fi
  if ((EUID != 0)); then
    as_root=(sudo -n)
    if ! sudo -n true 2> /dev/null; then
      echo "missing, and not permitted to install them; please ask for these packages: $*" >&2
      return 1
    fi
  fi
  echo "installing: $*" >&2
  as_root+=(env DEBIAN_FRONTEND=noninteractive apt-get -qq)
  # Old lists may still do: only a failing installation is a failure.
  "${as_root[@]}" update < /dev/null >&2 || true
  if ! "${as_root[@]}" install -y --no-install-recommends "$@" < /dev/null >&2; then
    echo "could not install: $*" >&2
    return 1
  fi
}
