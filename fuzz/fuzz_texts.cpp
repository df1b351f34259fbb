// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Texts of broadcasts. The first byte chooses what the host says of character tables, the others are a field.
#include <sivane/charset/charset.h>
#include <sivane/charset/encoder.h>
#include <sivane/charset/utf8.h>

#include <algorithm>
#include <array>
#include <cstdint>

#include "heap_block.h"
#include "input.h"

namespace {

using namespace sivane;
using fuzzing::check;

/// Tables of bytes and of units, with states and without.
std::array<charset::Converter, 8> make_converters() {
  auto const make = [](char const* default_table, char const* overrule) {
    return charset::Converter({default_table, overrule, " ", "", ""});
  };
  return {make("", ""),
          make("ISO-8859-1", ""),
          make("UTF-8", ""),
          make("UTF-16LE", "ISO_6937"),
          make("ISO-2022-KR", "BIG5-HKSCS"),
          make("", "UTF-7"),
          make("UCS-4BE", ""),
          make("", "EUC-JISX0213")};
}

bool is_text(std::string_view utf8) {
  while (!utf8.empty()) {
    charset::Utf8 const next = charset::first_of_utf8(utf8);
    if (!next.is_valid || next.character < 0x20 || (next.character >= 0x7F && next.character <= 0x9F))
      return false;
    utf8.remove_prefix(next.size);
  }
  return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  static auto converters = make_converters();
  static charset::Encoder encoder("ISO-8859-15");
  if (size < 1) return 0;
  charset::Converter& converter = converters[data[0] % converters.size()];
  testing::HeapBlock const field(testing::Bytes(data + 1, data + size));
  std::string_view const raw(reinterpret_cast<char const*>(field.data()), size - 1);
  std::string const converted = converter.utf8(raw);
  check(is_text(converted), "what comes out is UTF-8 without control characters");
  check(converter.utf8(raw) == converted, "a text leaves nothing behind for the next");
  Text text;
  text.parse(field.size(), field.data());
  check(converter.utf8(text) == converted, "the selector counts wherever it is kept");
  auto const is_ascii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
  std::string const encoded = encoder.encode(converted);
  check(!std::ranges::all_of(converted, is_ascii) || encoded == converted, "ASCII stays what it is");
  return 0;
}
