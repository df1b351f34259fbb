// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "text/names.h"

#include <sivane/sivane.h>

#include <string_view>

#include "text/hexadecimal.h"
#include "text/terminal.h"

namespace inspect {

std::u32string registered_name(char const* (*lookup)(int), int id) {
  sivane::init();
  std::string_view const name = lookup(id);
  if (name == "<unknown>") return {};
  constexpr std::string_view entity = "&nbsp;";
  std::string text(name);
  for (std::size_t at = text.find(entity); at != std::string::npos; at = text.find(entity)) {
    text.replace(at, entity.size(), 1, ' ');
  }
  std::u32string clean;
  for (char const byte : text) {
    auto const c =
        static_cast<unsigned char>(byte);  // ISO 8859-1, whose bytes are the first characters of Unicode
    bool const is_blank = c == ' ' || c == 0xA0;
    if (!is_blank) clean += char32_t(c);
    if (is_blank && !clean.empty() && clean.back() != U' ') clean += U' ';
  }
  if (!clean.empty() && clean.back() == U' ') clean.pop_back();
  return clean;
}

namespace {

std::u32string with_name(std::u32string const& number, std::u32string const& name) {
  return name.empty() ? number : number + U" (" + name + U")";
}

std::u32string hexadecimal(int id) { return plain(c_hexadecimal(id, 2)); }

}  // namespace

std::u32string numbered(char const* (*lookup)(int), int id) {
  return with_name(plain(id), registered_name(lookup, id));
}

std::u32string numbered_ca_system(int id) {
  return with_name(hexadecimal(id), registered_name(sivane::get_ca_system_id, id));
}

std::u32string ca_systems(std::set<int> const& ids) {
  std::set<std::u32string> named;  // a party may have several ids
  for (int const id : ids) {
    std::u32string const name = registered_name(sivane::get_ca_system_id, id);
    named.insert(name.empty() ? hexadecimal(id) : name);
  }
  std::u32string names;
  for (std::u32string const& name : named) names += (names.empty() ? U"" : U", ") + name;
  return names;
}

}  // namespace inspect
