// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/charset/encoder.h>
#include <sivane/charset/iconv_handle.h>
#include <sivane/charset/utf8.h>

#include <stdexcept>

namespace sivane::charset {

Encoder::Encoder(std::string const& name) : iconv_(std::make_unique<IconvHandle>(name, "UTF-8")) {
  if (!iconv_->is_open()) throw std::invalid_argument("no encoding has the name " + name);
}
Encoder::~Encoder() = default;
Encoder::Encoder(Encoder&& other) noexcept = default;
Encoder& Encoder::operator=(Encoder&& other) noexcept = default;

std::string Encoder::encode(std::string_view utf8) {
  std::string encoded;
  while (!utf8.empty()) {
    utf8 = iconv_->convert(utf8, encoded);
    if (utf8.empty()) break;
    iconv_->convert("?", encoded);
    utf8.remove_prefix(first_of_utf8(utf8).size);
  }
  return encoded;
}

}  // namespace sivane::charset
