// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: readers of descriptors that keep to their length.
#pragma once

#include <sivane/foundation/reader.h>

namespace sivane {

/// A reader that no field leaves: what the length claims is all there is.
inline Reader exact_body(DescriptorBytes descriptor) {
  Reader section = descriptor.body();
  int const offset = section.offset();
  int const length = descriptor.length();
  return {section.raw(length), length, length, too_little_data, offset};
}

/// The same behind the extension tag, with which the body of an extension descriptor begins.
inline Reader extension_body(DescriptorBytes descriptor) {
  Reader r = exact_body(descriptor);
  r.skip_bits(8);
  return r;
}

/// A reader of the next `size` bytes that no field leaves, and steps over them.
inline Reader exact_loop(Reader& reader, int size) {
  int const offset = reader.offset();
  return {reader.raw(size), size, size, too_little_data, offset};
}

/// A length byte and that many bytes.
inline std::vector<unsigned char> prefixed_bytes(Reader& reader) { return reader.bytes(reader.u8()); }

}  // namespace sivane
