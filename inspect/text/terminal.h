// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace inspect {

/// Text in the encoding of the user's locale; UTF-8 in a locale that is none ("C").
std::string for_terminal(std::u32string_view text);

/// How many cells of a terminal a text takes: two for each ideograph, none for a combining mark.
int width_of(std::u32string_view text);

/// Rows of texts in columns as wide as their widest text, two blanks between them.
class Columns {
 public:
  explicit Columns(std::vector<std::u32string> titles) : rows_{std::move(titles)} {}
  void add(std::vector<std::u32string> row) { rows_.push_back(std::move(row)); }
  bool empty() const { return rows_.size() == 1; }
  void print(std::ostream& out) const;

 private:
  std::vector<std::vector<std::u32string>> rows_;
};

/// Plain text.
std::u32string plain(std::string_view ascii);
std::u32string plain(long long number);

}  // namespace inspect
