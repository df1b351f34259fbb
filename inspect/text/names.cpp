// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "text/names.h"

#include <sivane/charset/utf8.h>
#include <sivane/sivane.h>

#include <string_view>

#include "text/hexadecimal.h"

namespace inspect {

std::string registered_name(char const* (*lookup)(int), int id) {
  sivane::init();
  std::string_view const name = lookup(id);
  if (name == "<unknown>") return {};
  constexpr std::string_view entity = "&nbsp;";
  std::string text(name);
  for (std::size_t at = text.find(entity); at != std::string::npos; at = text.find(entity)) {
    text.replace(at, entity.size(), 1, ' ');
  }
  std::string clean;
  for (char const byte : text) {
    auto const c =
        static_cast<unsigned char>(byte);  // ISO 8859-1, whose bytes are the first characters of Unicode
    bool const is_blank = c == ' ' || c == 0xA0;
    if (!is_blank) sivane::charset::append_utf8(clean, c);
    if (is_blank && !clean.empty() && clean.back() != ' ') clean += ' ';
  }
  if (!clean.empty() && clean.back() == ' ') clean.pop_back();
  return clean;
}

namespace {

std::string with_name(std::string const& number, std::string const& name) {
  return name.empty() ? number : number + " (" + name + ")";
}

}  // namespace

std::string numbered(char const* (*lookup)(int), int id) {
  return with_name(std::to_string(id), registered_name(lookup, id));
}

std::string numbered_ca_system(int id) {
  return with_name(c_hexadecimal(id, 2), registered_name(sivane::get_ca_system_id, id));
}

std::string ca_systems(std::set<int> const& ids) {
  std::set<std::string> named;  // a party may have several ids
  for (int const id : ids) {
    std::string const name = registered_name(sivane::get_ca_system_id, id);
    named.insert(name.empty() ? c_hexadecimal(id, 2) : name);
  }
  std::string names;
  for (std::string const& name : named) names += (names.empty() ? "" : ", ") + name;
  return names;
}

}  // namespace inspect
