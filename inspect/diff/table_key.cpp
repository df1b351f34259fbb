// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "diff/table_key.h"

#include <cstdio>
#include <span>

namespace inspect {

namespace {

struct Id {
  char const* field;
  char const* word;
};

constexpr Id of_pat[] = {{"context_id", "stream"}};
constexpr Id of_pmt[] = {{"context_id", "program"}};
constexpr Id of_nit[] = {{"context_id", "network"}};
constexpr Id of_bat[] = {{"context_id", "bouquet"}};
constexpr Id of_sdt[] = {{"context_id", "stream"}, {"original_network_id", "network"}};
constexpr Id of_eit[] = {
    {"context_id", "service"}, {"transport_stream_id", "stream"}, {"original_network_id", "network"}};
constexpr Id of_ait[] = {{"context_id", "application type"}};
constexpr Id of_others[] = {{"context_id", "extension"}};

std::span<Id const> ids_of(std::string_view class_name) {
  if (class_name == "Pat") return of_pat;
  if (class_name == "Pmt") return of_pmt;
  if (class_name == "Nit") return of_nit;
  if (class_name == "Bat") return of_bat;
  if (class_name == "Sdt") return of_sdt;
  if (class_name == "Eit") return of_eit;
  if (class_name == "Ait") return of_ait;
  if (class_name == "DsmCC") return of_others;
  return {};
}

std::string hexadecimal(char const* format, int number) {
  char text[16];
  std::snprintf(text, sizeof text, format, number);
  return text;
}

}  // namespace

TableKey key_of(std::string_view class_name, int pid, JsonValue const& table) {
  int const table_id = number_of(table, "table_id");
  TableKey key{{table_id}, std::string(class_name) + ' ' + hexadecimal("0x%02x", table_id)};
  bool const has_pid = pid >= 0 && (class_name == "Ait" || class_name == "DsmCC");
  if (has_pid) key.label += " of PID " + hexadecimal("0x%04x", pid);
  key.ids.push_back(has_pid ? pid : -1);
  for (Id const& id : ids_of(class_name)) {
    key.ids.push_back(number_of(table, id.field));
    key.label += std::string(", ") + id.word + ' ' + std::to_string(key.ids.back());
  }
  bool const is_next = member_of(table, "current_next_indicator") != nullptr &&
                       number_of(table, "current_next_indicator") == 0;
  key.ids.push_back(is_next ? 1 : 0);
  if (is_next) key.label += ", next";
  return key;
}

}  // namespace inspect
