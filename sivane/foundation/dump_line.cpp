// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/dump_line.h>

#include <algorithm>
#include <charconv>
#include <iomanip>
#include <locale>

namespace sivane::dump {

namespace {

bool is_hexadecimal(std::ostream const& os) { return (os.flags() & std::ios::hex) != 0; }

bool is_plain(std::ostream const& os) {
  constexpr auto unusual = std::ios::oct | std::ios::showbase | std::ios::showpos | std::ios::left |
                           std::ios::internal | std::ios::showpoint | std::ios::floatfield;
  auto const base = os.flags() & std::ios::basefield;
  return os.width() == 0 && (os.flags() & unusual) == 0 && (base == std::ios::dec || base == std::ios::hex) &&
         os.getloc() == std::locale::classic();
}

char* to_upper(char* first, char* last) {
  return std::transform(first, last, first,
                        [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
}

}  // namespace

Line::Line(std::ostream& os) : os_(os), is_plain_(is_plain(os)) {}

Line& Line::text(std::string_view text) {
  if (!is_plain_) {
    os_ << text;
    return *this;
  }
  if (text.size() > static_cast<std::size_t>(std::end(bytes_) - end_)) write();
  if (text.size() > sizeof bytes_) {
    os_.write(text.data(), static_cast<std::streamsize>(text.size()));
  } else {
    end_ = std::copy(text.begin(), text.end(), end_);
  }
  return *this;
}

Line& Line::number(int value, int width) {
  if (!is_plain_) {
    insert(value, width);
  } else if (value >= 0 || is_hexadecimal(os_)) {
    digits(static_cast<unsigned int>(value), width);
  } else {
    char text[16];
    padded(text, std::to_chars(text, std::end(text), value).ptr, width);
  }
  return *this;
}

Line& Line::number(unsigned long value, int width) {
  if (is_plain_) {
    digits(value, width);
  } else {
    insert(value, width);
  }
  return *this;
}

Line& Line::number(double value) {
  char text[64];
  int const precision = static_cast<int>(os_.precision());
  if (!is_plain_ || precision < 1 || precision > 40) {
    write();
    os_ << value;
    return *this;
  }
  char* const end = std::to_chars(text, std::end(text), value, std::chars_format::general, precision).ptr;
  if ((os_.flags() & std::ios::uppercase) != 0) to_upper(text, end);
  return padded(text, end, 0);
}

template <class Number>
void Line::insert(Number value, int width) {
  // Without one the stream keeps the width that it was given for what comes next.
  if (width > 0) os_ << std::setw(width);
  os_ << value;
}

void Line::digits(unsigned long value, int width) {
  bool const is_hex = is_hexadecimal(os_);
  char text[24];
  char* const end = std::to_chars(text, std::end(text), value, is_hex ? 16 : 10).ptr;
  if (is_hex && (os_.flags() & std::ios::uppercase) != 0) to_upper(text, end);
  padded(text, end, width);
}

Line& Line::padded(char const* first, char const* last, int width) {
  for (auto missing = width - (last - first); missing > 0; --missing) text(os_.fill());
  return text({first, static_cast<std::size_t>(last - first)});
}

void Line::write() {
  if (end_ != bytes_) os_.write(bytes_, end_ - bytes_);
  end_ = bytes_;
}

void Line::end() {
  text('\n');
  write();
  // A stream that flushes behind every output has done so.
  if (!is_plain_ || (os_.flags() & std::ios::unitbuf) == 0) os_.flush();
}

}  // namespace sivane::dump
