// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: entries of tables, which all end their head with four reserved bits and the length of what
// follows.
#pragma once

#include <sivane/foundation/reader.h>

namespace sivane {

/// A reader of the entry at a bare pointer, whose own length field is its only bound.
inline Reader entry_reader(unsigned char const* data, int head_size, Failure overrun) {
  Reader head = Reader::trusting(data);
  head.skip_bits(head_size * 8 - 12);
  return Reader::within(data, head_size + head.bits(12), overrun);
}

}  // namespace sivane
