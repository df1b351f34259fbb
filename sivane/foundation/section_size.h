// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

namespace sivane {

/// The bytes of the section that begins at `section`, 3 to 4098 by its section_length of 12 bits, which
/// counts what follows it (ISO/IEC 13818-1, 2.4.4). Three bytes are read.
inline int section_size(unsigned char const* section) {
  constexpr int size_up_to_length = 3;
  return ((section[1] & 0x0F) << 8 | section[2]) + size_up_to_length;
}

}  // namespace sivane
