// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/xml/dom.h>
#include <sivane/xml/strings.h>

#include <charconv>
#include <iterator>
#include <string_view>

namespace sivane {

namespace {
template <class Number>
std::u16string decimal(Number number) {
  char digits[32];  // the longest is a double such as -2.2250738585072014e-308
  auto const result = std::to_chars(std::begin(digits), std::end(digits), number);
  return widen(std::string_view(digits, static_cast<std::size_t>(result.ptr - digits)));
}
}  // namespace

std::u16string tagVARIANT::text() const {
  switch (vt) {
    case VT_I4:
      return decimal(lVal);
    case VT_R8:
      return decimal(dblVal);
    case VT_BSTR:
      return bstrVal;
    default:
      return {};
  }
}

}  // namespace sivane
