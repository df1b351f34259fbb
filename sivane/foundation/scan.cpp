// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/scan.h>

namespace sivane {

namespace {
bool is_blank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
}  // namespace

int digit_value(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return 16;
}

bool scan_number(char const*& text, unsigned int base, unsigned int& value) {
  auto const is_digit = [base](char c) { return static_cast<unsigned int>(digit_value(c)) < base; };
  char const* at = text;
  while (is_blank(*at)) ++at;
  bool const negative = *at == '-';
  if (*at == '-' || *at == '+') ++at;
  if (base == 16 && at[0] == '0' && (at[1] == 'x' || at[1] == 'X') && is_digit(at[2])) at += 2;
  if (!is_digit(*at)) return false;
  unsigned int sum = 0;
  for (; is_digit(*at); ++at) sum = sum * base + static_cast<unsigned int>(digit_value(*at));
  value = negative ? 0u - sum : sum;
  text = at;
  return true;
}

bool scan_number(char const*& text, unsigned int base, int& value) {
  auto number = static_cast<unsigned int>(value);
  bool const found = scan_number(text, base, number);
  value = static_cast<int>(number);
  return found;
}

}  // namespace sivane
