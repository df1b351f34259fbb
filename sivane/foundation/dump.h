// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>

#include <iosfwd>

namespace sivane {

/// Writes bytes as lines of 16: each as a two-wide hexadecimal number and a blank, then " : ", then the
/// letters among them with a dot for any other byte. The stream stays hexadecimal. No bytes, no line.
SIVANE_API void dump_block(std::ostream& os, unsigned char const* data, int size);

}  // namespace sivane
