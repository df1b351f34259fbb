// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/hex.h>
#include <sivane/foundation/scan.h>

#include <algorithm>

namespace sivane {

namespace {

constexpr std::size_t byte_digits = 2;
constexpr std::size_t entry_digits = 8;

void append_hex(std::string& text, unsigned int value, std::size_t digits) {
  for (std::size_t shift = digits * 4; shift > 0; shift -= 4) {
    text += "0123456789abcdef"[value >> (shift - 4) & 0xF];
  }
}

template <class Entry>
void append_entries(std::vector<Entry> const& data, std::string& text, std::size_t digits) {
  text.reserve(text.size() + data.size() * digits);
  for (Entry const entry : data) append_hex(text, static_cast<unsigned int>(entry), digits);
}

unsigned int group_value(char const* group, std::size_t digits) {
  unsigned int value = 0;
  for (char const* c = group; c != group + digits && digit_value(*c) < 16; ++c) {
    value = value << 4 | static_cast<unsigned int>(digit_value(*c));
  }
  return value;
}

template <class Entry>
void read_entries(std::string const& text, std::vector<Entry>& data, std::size_t digits) {
  if (text.size() % digits != 0) return;
  data.reserve(data.size() + text.size() / digits);
  for (std::size_t i = 0; i < text.size(); i += digits) {
    data.push_back(static_cast<Entry>(group_value(text.data() + i, digits)));
  }
}

}  // namespace

void bin2str(unsigned char const* data, std::string& text, int size) {
  for (int i = 0; i < size; ++i) append_hex(text, data[i], byte_digits);
}

void bin2str(std::vector<unsigned char> const& data, std::string& text) {
  append_entries(data, text, byte_digits);
}

void bin2str(std::vector<int> const& data, std::string& text) { append_entries(data, text, entry_digits); }

void bin2str(std::vector<unsigned long> const& data, std::string& text) {
  append_entries(data, text, entry_digits);
}

void str2bin(std::string const& text, unsigned char* data, int size) {
  std::vector<unsigned char> bytes;
  str2bin(text, bytes);
  std::size_t const room = size > 0 ? static_cast<std::size_t>(size) : 0;
  std::copy_n(bytes.begin(), std::min(bytes.size(), room), data);
}

void str2bin(std::string const& text, std::vector<unsigned char>& data) {
  read_entries(text, data, byte_digits);
}

void str2bin(std::string const& text, std::vector<int>& data) { read_entries(text, data, entry_digits); }

void str2bin(std::string const& text, std::vector<unsigned long>& data) {
  read_entries(text, data, entry_digits);
}

}  // namespace sivane
