// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "text/conversion.h"

#include <iconv.h>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstdint>
#include <vector>

namespace inspect {

namespace {

constexpr char const* unicode = std::endian::native == std::endian::little ? "UTF-32LE" : "UTF-32BE";

class Converter {
 public:
  Converter(std::string const& to, std::string const& from) : handle_(iconv_open(to.c_str(), from.c_str())) {}
  Converter(Converter const&) = delete;
  Converter& operator=(Converter const&) = delete;
  ~Converter() {
    if (is_open()) iconv_close(handle_);
  }

  bool is_open() const { return reinterpret_cast<std::intptr_t>(handle_) != -1; }

  /// Converts as far as it goes, and gives what is left: nothing, or what begins with a unit that is
  /// malformed, cut off or not in the other encoding.
  std::string_view convert(std::string_view text, std::string& converted) {
    std::vector<char> buffer(4 * text.size() + 64);
    char* in = const_cast<char*>(text.data());  // which iconv does not change
    std::size_t left = text.size();
    std::size_t result = 0;
    do {
      char* out = buffer.data();
      std::size_t room = buffer.size();
      result = iconv(handle_, &in, &left, &out, &room);
      converted.append(buffer.data(), out);
    } while (result == failed && errno == E2BIG);
    flush(converted);
    return text.substr(text.size() - left);
  }

 private:
  static constexpr auto failed = static_cast<std::size_t>(-1);

  /// What the converter still holds, a letter that might have gone with a following mark.
  void flush(std::string& converted) {
    char buffer[64];
    char* out = buffer;
    std::size_t room = sizeof buffer;
    iconv(handle_, nullptr, nullptr, &out, &room);
    converted.append(buffer, out);
  }

  iconv_t handle_;
};

std::string_view bytes_of(std::u32string_view text) {
  return {reinterpret_cast<char const*>(text.data()), text.size() * sizeof(char32_t)};
}

/// Converts all of it; `replace` appends what stands for the front of a rest, and gives the size of that.
template <class Replace>
std::string convert_all(std::string_view text, std::string const& to, std::string const& from,
                        Replace replace) {
  std::string converted;
  Converter converter(to, from);
  while (!text.empty()) {
    if (converter.is_open()) text = converter.convert(text, converted);
    if (!text.empty()) text.remove_prefix(std::min(replace(text, converted), text.size()));
  }
  return converted;
}

}  // namespace

StandIn unknown_byte(std::string_view) { return {1, U"\uFFFD"}; }

std::u32string to_unicode(std::string_view text, std::string const& encoding, FindStandIn stand_in) {
  std::string const bytes =
      convert_all(text, unicode, encoding, [stand_in](std::string_view rest, std::string& converted) {
        StandIn const found = stand_in(rest);
        converted += bytes_of(found.text);
        return found.size;
      });
  std::u32string converted(bytes.size() / sizeof(char32_t), U'\0');
  std::copy_n(bytes.data(), bytes.size(), reinterpret_cast<char*>(converted.data()));
  return converted;
}

std::string from_unicode(std::u32string_view text, std::string const& encoding) {
  return convert_all(bytes_of(text), encoding, unicode, [](std::string_view, std::string& converted) {
    converted += '?';
    return sizeof(char32_t);
  });
}

}  // namespace inspect
