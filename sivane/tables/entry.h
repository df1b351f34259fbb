// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: the length fields of tables, and their entries, whose heads all end with one.
#pragma once

#include <sivane/foundation/reader.h>

namespace sivane {

/// Four reserved bits and a length of 12.
inline int length_field(Reader& reader) {
  reader.skip_bits(4);
  return reader.bits(12);
}

/// A reader of the entry at a bare pointer, whose own length field is its only bound.
inline Reader entry_reader(unsigned char const* data, int head_size, Failure overrun) {
  Reader head = Reader::trusting(data);
  head.skip_bits(head_size * 8 - 12);
  return Reader::within(data, head_size + head.bits(12), overrun);
}

}  // namespace sivane
