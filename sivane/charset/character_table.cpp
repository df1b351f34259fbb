// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/charset/character_table.h>

#include <algorithm>
#include <cctype>
#include <iterator>

namespace sivane::charset {

namespace {

constexpr char32_t unknown = U'\uFFFD';

unsigned char first_of(std::string_view text) { return static_cast<unsigned char>(text[0]); }

bool is_control_byte(char byte) { return (byte & 0xE0) == 0x80; }

StandIn unknown_byte(std::string_view) { return {1, {unknown}}; }

StandIn unknown_unit_of_two(std::string_view) { return {2, {unknown}}; }

/// Where two bytes make a character, a control character is 0xE0 and its byte.
StandIn in_table_of_two_bytes(std::string_view rest) {
  bool const is_control = rest.size() > 1 && first_of(rest) == 0xE0 && is_control_byte(rest[1]);
  return is_control ? StandIn{2, {first_of(rest.substr(1))}} : control_or_unknown(rest);
}

/// A diacritic stands in front of its letter; iconv knows the usual pairs only.
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

// iconv takes the 0xE2 of ISO/IEC 6937 for the Icelandic letter that looks the same.
constexpr CharacterTable tables[] = {
    {"ISO_6937", true, in_default_table, U'\u00D0', U'\u0110'},
    {"US-ASCII", true, control_or_unknown},
    {"UTF-8", true, unknown_byte},
    {"UTF-16BE", false, unknown_unit_of_two},
    {"EUC-KR", true, in_table_of_two_bytes},
    {"GB2312", true, in_table_of_two_bytes},
};
constexpr CharacterTable const *iso_6937 = tables, *ascii = tables + 1, *of_utf8 = tables + 2,
                               *basic_plane = tables + 3, *korean = tables + 4, *chinese = tables + 5;

// By the part of ISO/IEC 8859, of which there is no twelfth.
constexpr CharacterTable latin_tables[] = {
    {"ISO-8859-1", true, control_or_unknown},  {"ISO-8859-2", true, control_or_unknown},
    {"ISO-8859-3", true, control_or_unknown},  {"ISO-8859-4", true, control_or_unknown},
    {"ISO-8859-5", true, control_or_unknown},  {"ISO-8859-6", true, control_or_unknown},
    {"ISO-8859-7", true, control_or_unknown},  {"ISO-8859-8", true, control_or_unknown},
    {"ISO-8859-9", true, control_or_unknown},  {"ISO-8859-10", true, control_or_unknown},
    {"ISO-8859-11", true, control_or_unknown}, {"US-ASCII", true, control_or_unknown},
    {"ISO-8859-13", true, control_or_unknown}, {"ISO-8859-14", true, control_or_unknown},
    {"ISO-8859-15", true, control_or_unknown},
};

CharacterTable const* latin(int part) {
  return part >= 1 && part <= static_cast<int>(std::size(latin_tables)) ? &latin_tables[part - 1] : ascii;
}

/// Which table a selector of one byte is for.
CharacterTable const* table_of(int selector) {
  switch (selector) {
    case 0x11:  // the Basic Multilingual Plane
    case 0x14:  // its subset for traditional Chinese
      return basic_plane;
    case 0x12:
      return korean;
    case 0x13:
      return chinese;
    case 0x15:
      return of_utf8;
    default:
      return selector >= 0x01 && selector <= 0x0B ? latin(selector + 4) : ascii;
  }
}

char small(char letter) { return static_cast<char>(std::tolower(static_cast<unsigned char>(letter))); }

bool is_same_name(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return small(a) == small(b); });
}

}  // namespace

StandIn control_or_unknown(std::string_view rest) {
  return is_control_byte(rest[0]) ? StandIn{1, {first_of(rest)}} : unknown_byte(rest);
}

Selection select(std::string_view field) {
  unsigned char const first = first_of(field);
  if (first >= 0x20) return {nullptr, 0};
  // The number of a registered party's encoding, none of which is known here.
  if (first == 0x1F) return {ascii, std::min<std::size_t>(field.size(), 2)};
  if (first != 0x10) return {table_of(first), 1};
  bool const is_latin = field.size() > 2 && field[1] == 0;
  return {is_latin ? latin(first_of(field.substr(2))) : ascii, std::min<std::size_t>(field.size(), 3)};
}

CharacterTable const& default_table() { return *iso_6937; }

CharacterTable const* find_table(std::string_view name) {
  auto const has_name = [name](CharacterTable const& table) { return is_same_name(table.name, name); };
  auto const* const table = std::find_if(std::begin(tables), std::end(tables), has_name);
  if (table != std::end(tables)) return table;
  auto const* const latin_table = std::find_if(std::begin(latin_tables), std::end(latin_tables), has_name);
  return latin_table != std::end(latin_tables) ? latin_table : nullptr;
}

}  // namespace sivane::charset
