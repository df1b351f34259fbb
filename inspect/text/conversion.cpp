// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "text/conversion.h"

#include <iconv.h>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstdint>
#include <new>
#include <vector>

#include "text/utf8.h"

namespace inspect {

namespace {

constexpr char const* unicode = std::endian::native == std::endian::little ? "UTF-32LE" : "UTF-32BE";

class Converter {
 public:
  /// Is not open where the system does not have one of the encodings.
  Converter(std::string const& to, std::string const& from) : handle_(iconv_open(to.c_str(), from.c_str())) {
    if (!is_open() && errno != EINVAL)
      throw std::bad_alloc();  // or too many open files: not the encoding's fault
  }
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

/// Characters as long as they are ASCII, which needs no converter: those of most texts, of every encoding
/// here but the wide ones. The rest of the text is left.
std::u32string take_ascii(std::string_view& text) {
  auto const end = std::ranges::find_if(text, [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
  std::u32string taken(text.begin(), end);
  text.remove_prefix(taken.size());
  return taken;
}

std::u32string from_utf8(std::string_view text) {
  std::u32string characters;
  while (!text.empty()) {
    Utf8 const next = first_of_utf8(text);
    characters += next.is_valid ? next.character : U'\uFFFD';
    text.remove_prefix(next.size);
  }
  return characters;
}

std::u32string by_iconv(std::string_view text, std::string const& encoding, FindStandIn stand_in) {
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

}  // namespace

StandIn unknown_byte(std::string_view) { return {1, U"\uFFFD"}; }

std::u32string to_unicode(std::string_view text, std::string const& encoding, FindStandIn stand_in) {
  if (encoding == "UTF-8") return from_utf8(text);
  bool const is_wide = encoding.starts_with("UTF-16");
  std::u32string converted = is_wide ? std::u32string() : take_ascii(text);
  return text.empty() ? converted : converted + by_iconv(text, encoding, stand_in);
}

std::string from_unicode(std::u32string_view text, std::string const& encoding) {
  bool const is_ascii = std::ranges::all_of(text, [](char32_t c) { return c < 0x80; });
  if (is_ascii) return {text.begin(), text.end()};
  if (encoding == "UTF-8") {
    std::string converted;
    for (char32_t const c : text) append_utf8(converted, c);
    return converted;
  }
  return convert_all(bytes_of(text), encoding, unicode, [](std::string_view, std::string& converted) {
    converted += '?';
    return sizeof(char32_t);
  });
}

}  // namespace inspect
