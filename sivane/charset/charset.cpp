// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/charset/charset.h>
#include <sivane/charset/decoder.h>
#include <sivane/charset/utf8.h>

#include <algorithm>
#include <deque>
#include <optional>
#include <stdexcept>
#include <utility>

namespace sivane::charset {

namespace {

bool is_printable_ascii(char c) { return c >= 0x20 && c < 0x7F; }

/// Control characters stand at U+0080 in tables of bytes and at U+E080 in the wider ones.
char32_t control_of(char32_t c) { return c >= 0xE080 && c <= 0xE09F ? c - 0xE000 : c; }

bool is_dropped(char32_t c) {
  return c < 0x20 || (c >= 0x7F && c <= 0x9F) || (c >= 0x202A && c <= 0x202E) ||
         (c >= 0x2066 && c <= 0x2069) || c == 0xFEFF;
}

bool is_line_break(char32_t c) { return c == U'\n' || c == 0x8A || c == 0x2028 || c == 0x2029; }

/// Surrogates, what ends a plane, and what is above the last one.
bool is_no_character(char32_t c) {
  return (c >= 0xD800 && c <= 0xDFFF) || (c & 0xFFFE) == 0xFFFE || c > 0x10FFFF;
}

void append(std::string& text, char32_t character, Options const& options) {
  constexpr char32_t emphasis_on = 0x86, emphasis_off = 0x87;
  char32_t const c = control_of(character);
  if (is_line_break(c)) {
    text += options.line_break;
  } else if (c == emphasis_on) {
    text += options.emphasis_on;
  } else if (c == emphasis_off) {
    text += options.emphasis_off;
  } else if (c == U'\t') {
    text += ' ';
  } else if (!is_dropped(c)) {
    append_utf8(text, is_no_character(c) ? U'\uFFFD' : c);
  }
}

}  // namespace

/// The decoders that were needed so far, and the options.
class Converter::Tables {
 public:
  explicit Tables(Options options) : options_(std::move(options)), default_(default_table()) {
    if (!options_.default_table.empty()) default_ = Decoder::named(options_.default_table);
    if (!options_.overrule.empty()) overrule_ = Decoder::named(options_.overrule);
  }

  Decoder& decoder(CharacterTable const* selected) {
    if (overrule_) return *overrule_;
    if (selected == nullptr) return default_;
    auto const found = std::find_if(selected_.begin(), selected_.end(), [selected](Decoder const& d) {
      return d.table().name == selected->name;
    });
    return found != selected_.end() ? *found : selected_.emplace_back(*selected);
  }

  std::string utf8(Decoder& decoder, std::string_view text) const {
    std::string converted;
    if (decoder.table().has_ascii) {
      auto const end = std::find_if_not(text.begin(), text.end(), is_printable_ascii);
      converted.assign(text.begin(), end);
      text.remove_prefix(converted.size());
    }
    if (text.empty()) return converted;
    if (!decoder.open()) throw std::runtime_error(std::string("iconv does not know ") + decoder.table().name);
    for (char32_t const c : decoder.decode(text)) append(converted, c, options_);
    return converted;
  }

 private:
  Options options_;
  Decoder default_;
  std::optional<Decoder> overrule_;
  std::deque<Decoder> selected_;
};

Converter::Converter(Options options) : tables_(std::make_unique<Tables>(std::move(options))) {}
Converter::~Converter() = default;
Converter::Converter(Converter&& other) noexcept = default;
Converter& Converter::operator=(Converter&& other) noexcept = default;

std::string Converter::utf8(Text const& text) {
  if (text.selector() < 0) return utf8(std::string_view(text));
  std::string field(1, static_cast<char>(text.selector()));
  field.append(text, 0, 2);  // what may belong to it
  auto const [table, size] = select(field);
  return tables_->utf8(tables_->decoder(table), std::string_view(text).substr(size - 1));
}

std::string Converter::utf8(std::string_view field) {
  if (field.empty()) return {};
  auto const [table, size] = select(field);
  return tables_->utf8(tables_->decoder(table), field.substr(size));
}

}  // namespace sivane::charset
