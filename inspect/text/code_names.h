// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace inspect {

/// What the coded numbers of a table stand for, told member by member. Only members whose meaning follows
/// from their own name are named, wherever they are; numbers that nobody has named or registered are not.
class CodeNames {
 public:
  /// Of a table of this class, which tells what its context_id is.
  explicit CodeNames(std::string_view table_class) : table_class_(table_class) {}

  struct Name {
    std::string member;  ///< what to call it: "stream_type_name"
    std::string text;    ///< UTF-8; empty where there is no name
  };
  /// The name to put behind a member. Each number of the table is to be told, in order, since some names are
  /// of several members.
  Name behind(std::string_view member, std::int64_t value);

 private:
  std::string_view table_class_;
  // The members that a later one completes.
  int genre_group_ = 0;
  int stream_content_ext_ = 0;
  int stream_content_ = -1;  // -1: none is open, as in descriptors that have a component_type alone
};

/// Whether `CodeNames` calls a name so; no field of any class is called so.
bool is_code_name(std::string_view member);

}  // namespace inspect
