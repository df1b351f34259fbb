// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/charset/decoder.h>
#include <sivane/charset/utf8.h>

#include <algorithm>
#include <bit>
#include <stdexcept>

namespace sivane::charset {

namespace {

constexpr char const* unicode = std::endian::native == std::endian::little ? "UTF-32LE" : "UTF-32BE";

std::string_view bytes_of(std::u32string_view text) {
  return {reinterpret_cast<char const*>(text.data()), text.size() * sizeof(char32_t)};
}

std::u32string from_utf8(std::string_view text) {
  std::u32string characters;
  while (!text.empty()) {
    Utf8 const next = first_of_utf8(text);
    characters += next.is_valid ? next.character : U'\uFFFD';
    text.remove_prefix(next.size);
  }
  return characters;
}

std::u32string from_ascii(std::string_view text, CharacterTable::FindStandIn* stand_in) {
  std::u32string characters;
  for (std::size_t i = 0; i < text.size(); ++i) {
    auto const byte = static_cast<unsigned char>(text[i]);
    if (byte < 0x80) {
      characters += byte;
    } else {
      characters += stand_in(text.substr(i)).text;
    }
  }
  return characters;
}

std::string printable_ascii() {
  std::string all;
  for (char c = 0x20; c < 0x7F; ++c) all += c;
  return all;
}

}  // namespace

Decoder Decoder::named(std::string const& name) {
  CharacterTable const* const known = find_table(name);
  Decoder decoder(known != nullptr ? *known : CharacterTable{name.c_str(), false, control_or_unknown});
  if (!decoder.open()) throw std::invalid_argument("no character table has the name " + name);
  if (known == nullptr) {
    std::string const ascii = printable_ascii();
    decoder.table_.has_ascii = decoder.decode(ascii) == std::u32string(ascii.begin(), ascii.end());
    decoder.table_.name = "";  // which was the caller's
  }
  return decoder;
}

bool Decoder::open() {
  std::string const name = table_.name;
  if (iconv_ || name == "UTF-8" || name == "US-ASCII") return true;
  IconvHandle opened(unicode, name);
  if (!opened.is_open()) return false;
  iconv_ = std::move(opened);
  return true;
}

std::u32string Decoder::decode(std::string_view text) {
  if (!iconv_)
    return table_.name == std::string_view("UTF-8") ? from_utf8(text) : from_ascii(text, table_.stand_in);
  std::u32string characters = by_iconv(text);
  if (table_.mistaken != 0) std::replace(characters.begin(), characters.end(), table_.mistaken, table_.meant);
  return characters;
}

std::u32string Decoder::by_iconv(std::string_view text) {
  std::string bytes;
  while (!text.empty()) {
    text = iconv_->convert(text, bytes);
    if (text.empty()) break;
    auto const [size, stand_in] = table_.stand_in(text);
    bytes += bytes_of(stand_in);
    text.remove_prefix(std::min(size, text.size()));
  }
  std::u32string characters(bytes.size() / sizeof(char32_t), U'\0');
  std::copy_n(bytes.data(), bytes.size(), reinterpret_cast<char*>(characters.data()));
  return characters;
}

}  // namespace sivane::charset
