// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "text/dvb_text.h"

#include <algorithm>

#include "text/conversion.h"

namespace inspect {

namespace {

/// A table of characters: what iconv makes of it, and what is put where that fails.
struct CharacterTable {
  std::string encoding;
  FindStandIn stand_in;
};

unsigned char first_of(std::string_view text) { return static_cast<unsigned char>(text[0]); }

bool is_control_byte(char byte) { return (byte & 0xE0) == 0x80; }

StandIn control_or_unknown(std::string_view rest) {
  return is_control_byte(rest[0]) ? StandIn{1, {first_of(rest)}} : unknown_byte(rest);
}

StandIn unknown_unit_of_two(std::string_view rest) { return {2, unknown_byte(rest).text}; }

/// Where two bytes make a character, a control character is 0xE0 and its byte.
StandIn in_table_of_two_bytes(std::string_view rest) {
  bool const is_control = rest.size() > 1 && first_of(rest) == 0xE0 && is_control_byte(rest[1]);
  return is_control ? StandIn{2, {first_of(rest.substr(1))}} : control_or_unknown(rest);
}

/// The default table is ISO/IEC 6937 with a euro sign. A diacritic stands in front of its letter; iconv knows
/// the usual pairs only.
StandIn in_default_table(std::string_view rest) {
  constexpr char32_t marks[] = {0,     0x300, 0x301, 0x302, 0x303, 0x304, 0x306, 0x307,
                                0x308, 0,     0x30A, 0x327, 0,     0x30B, 0x328, 0x30C};
  unsigned char const first = first_of(rest);
  if (first == 0xA4) return {1, U"\u20AC"};
  char32_t const mark = first >> 4 == 0xC ? marks[first & 0xF] : 0;
  bool const has_letter = rest.size() > 1 && rest[1] >= 0x20 && rest[1] < 0x7F;
  if (mark != 0 && has_letter) return {2, {first_of(rest.substr(1)), mark}};
  return control_or_unknown(rest);
}

CharacterTable const default_table = {"ISO_6937", in_default_table};
CharacterTable const unknown_table = {"US-ASCII", control_or_unknown};

CharacterTable latin(int part) {
  bool const is_known = part >= 1 && part <= 15 && part != 12;
  return is_known ? CharacterTable{"ISO-8859-" + std::to_string(part), control_or_unknown} : unknown_table;
}

/// Which table a selector of one byte is for.
CharacterTable table_of(int selector) {
  switch (selector) {
    case 0x11:  // the Basic Multilingual Plane
    case 0x14:  // its subset for traditional Chinese
      return {"UTF-16BE", unknown_unit_of_two};
    case 0x12:
      return {"EUC-KR", in_table_of_two_bytes};
    case 0x13:
      return {"GB2312", in_table_of_two_bytes};
    case 0x15:
      return {"UTF-8", unknown_byte};
    default:
      return selector >= 0x01 && selector <= 0x0B ? latin(selector + 4) : unknown_table;
  }
}

struct Selected {
  CharacterTable table;
  std::size_t selector_size;
};

Selected select(std::string_view field) {
  unsigned char const first = first_of(field);
  if (first >= 0x20) return {default_table, 0};
  // The number of a registered party's encoding, none of which is known here.
  if (first == 0x1F) return {unknown_table, std::min<std::size_t>(field.size(), 2)};
  if (first != 0x10) return {table_of(first), 1};
  bool const is_latin = field.size() > 2 && field[1] == 0;
  return {is_latin ? latin(first_of(field.substr(2))) : unknown_table,
          std::min<std::size_t>(field.size(), 3)};
}

std::u32string convert(std::string_view field) {
  auto const [table, selector_size] = select(field);
  std::u32string text = to_unicode(field.substr(selector_size), table.encoding, table.stand_in);
  // iconv takes its 0xE2 for the Icelandic letter that looks the same.
  if (selector_size == 0) std::replace(text.begin(), text.end(), U'\u00D0', U'\u0110');
  return text;
}

/// Control characters stand at U+0080 in tables of bytes and at U+E080 in the wider ones.
bool is_control(char32_t c) {
  return c < 0x20 || (c >= 0x7F && c <= 0x9F) || (c >= 0xE080 && c <= 0xE09F) ||
         (c >= 0x2028 && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069) || c == 0xFEFF;
}

bool is_space(char32_t c) {
  return c == U'\t' || c == U'\n' || c == 0x8A || c == 0xE08A || c == 0x2028 || c == 0x2029;
}

}  // namespace

std::u32string dvb_text(std::string_view field) {
  if (field.empty()) return {};
  std::u32string shown;
  for (char32_t const c : convert(field)) {
    if (is_space(c)) shown += U' ';
    if (!is_control(c)) shown += c;
  }
  return shown;
}

}  // namespace inspect
