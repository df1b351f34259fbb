// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "section_text.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <string>

namespace sivane::testing {

namespace {

class Assembler {
 public:
  Assembler(std::string_view text, int* mark) : rest_(text), mark_(mark) {}

  Bytes run() {
    read_until(end_of_text);
    if (crc_end_ > 0) {
      Bytes summed(bytes_.begin(), bytes_.begin() + crc_end_);
      repair_crc(summed);
      std::copy(summed.begin(), summed.end(), bytes_.begin());
    }
    return bytes_;
  }

 private:
  static constexpr char end_of_text = '\0';

  char next() {
    if (rest_.empty()) return end_of_text;
    char const c = rest_.front();
    rest_.remove_prefix(1);
    return c;
  }

  void read_until(char end) {
    for (char c = next(); c != end; c = next()) read(c);
  }

  void read(char c) {
    if (c == ' ' || c == '\n') return;
    if (c == '#') return skip_line();
    if (c == '^' && mark_ != nullptr) return static_cast<void>(*mark_ = static_cast<int>(bytes_.size()));
    if (c == '"') return read_characters();
    if (c == '[') return read_counted(']', 1, 0);
    if (c == 'c' && rest_.starts_with("rc")) return leave_room_for_crc();
    char const second = next();
    if (second == '(') return read_counted(')', 2, hex(std::string{'0', c})[0]);
    bytes_ = std::move(bytes_) + hex(std::string{c, second});  // which throws for what is no digit
  }

  void skip_line() { rest_.remove_prefix(std::min(rest_.find('\n'), rest_.size())); }

  void read_characters() {
    for (char c = next(); c != '"'; c = next()) {
      if (c == end_of_text) throw std::invalid_argument("a quote is open");
      bytes_.push_back(static_cast<unsigned char>(c));
    }
  }

  void leave_room_for_crc() {
    rest_.remove_prefix(2);
    bytes_.resize(bytes_.size() + 4);
    crc_end_ = static_cast<std::ptrdiff_t>(bytes_.size());
  }

  void read_counted(char closed_by, std::size_t size_of_count, int top_digit) {
    int const added = read_number();
    std::size_t const first = bytes_.size();
    bytes_.resize(first + size_of_count);
    read_until(closed_by);
    int const count = static_cast<int>(bytes_.size() - first - size_of_count) + added;
    if (count < 0 || count > (size_of_count == 1 ? 0xFF : 0xFFF)) throw std::invalid_argument("a count");
    bytes_[first] = static_cast<unsigned char>(top_digit << 4 | count >> 8);
    bytes_[first + size_of_count - 1] = static_cast<unsigned char>(count & 0xFF);
  }

  int read_number() {
    if (rest_.starts_with('+'))
      rest_.remove_prefix(1);
    else if (!rest_.starts_with('-'))
      return 0;
    int value = 0;
    char const* const end = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value).ptr;
    rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
    return value;
  }

  std::string_view rest_;
  int* mark_;
  Bytes bytes_;
  std::ptrdiff_t crc_end_ = 0;
};

}  // namespace

Bytes assemble(std::string_view text, int* mark) { return Assembler(text, mark).run(); }

}  // namespace sivane::testing
