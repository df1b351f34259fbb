// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace inspect {

/// UTF-8 in the encoding of the user's locale; UTF-8 in a locale that is none ("C").
std::string for_terminal(std::string_view text);

/// How many cells of a terminal a text in UTF-8 takes: two for each ideograph, none for a combining mark.
int width_of(std::string_view text);

/// Rows of texts in UTF-8, in columns as wide as their widest text, two blanks between them.
class Columns {
 public:
  explicit Columns(std::vector<std::string> titles) : rows_{std::move(titles)} {}
  void add(std::vector<std::string> row) { rows_.push_back(std::move(row)); }
  bool empty() const { return rows_.size() == 1; }
  void print(std::ostream& out) const;

 private:
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace inspect
