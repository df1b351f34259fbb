// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "text/hexadecimal.h"

#include <sivane/sivane.h>

namespace inspect {

std::string c_hexadecimal(int value, int bytes) {
  unsigned char const big_endian[] = {static_cast<unsigned char>(value >> 8),
                                      static_cast<unsigned char>(value)};
  std::string text = "0x";
  sivane::bin2str(big_endian + 2 - bytes, text, bytes);
  return text;
}

}  // namespace inspect
