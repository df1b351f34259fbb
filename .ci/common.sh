# SPDX-License-Identifier: MIT
# Copyright (c) 2026 the sivane authors
# shellcheck shell=bash
#
# To be sourced by the checks beside it: they run from the root of the tree, stop at the first failure, and build
# under build/ci.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source cmake/need-packages.sh

root=$PWD
jobs=$(nproc)

fail() {
  echo "$(basename "$0"): $*" >&2
  exit 1
}

# configure DIRECTORY [OPTION...]: the release preset in a directory of its own, as it would be packaged.
configure() {
  cmake --preset release -B "$1" --install-prefix /usr "${@:2}" > /dev/null
}

# The build with g++ that several checks share.
configure_gcc() { configure build/ci/gcc -D CMAKE_CXX_COMPILER=g++ -D SIVANE_BUILD_FUZZERS=ON "$@"; }

# The libraries over the core, as hosts ask for them.
components=(dom charset catalogue)

# install_library DIRECTORY PREFIX: builds the libraries alone and installs what a host needs of them into an empty
# prefix.
install_library() {
  local component
  cmake --build "$1" --parallel "$jobs" --target sivane "${components[@]/#/sivane_}"
  rm -rf "$2"
  for component in runtime development "${components[@]}" "${components[@]/%/_runtime}"; do
    cmake --install "$1" --prefix "$2" --component "$component" > /dev/null
  done
}

# The warnings of the project, as compilers take them.
project_warnings() { grep -oE -e '-W[-a-z0-9]+' cmake/targets.cmake; }

# Headers of sivane/ that are installed, one a line, relative to sivane/.
public_headers() { sed -n '/HEADERS/,/)/s/^ *\([a-z0-9_/]*\.\(h\|inc\)\))*$/\1/p' sivane/CMakeLists.txt; }

# Under the randomisation of some kernels the sanitizers of g++ 12 and clang 14 do not start; where it may be
# switched off, `steady` holds the command that does so.
steady=()
if setarch -R true 2> /dev/null; then steady=(setarch -R); fi
