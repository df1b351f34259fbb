// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/dump.h>

#include <algorithm>
#include <iomanip>

namespace sivane {

namespace {

constexpr int bytes_a_line = 16;

bool is_letter(unsigned char byte) { return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z'); }

void dump_bytes(std::ostream& os, unsigned char const* bytes, int count) {
  for (int i = 0; i < count; ++i) os << std::hex << std::setw(2) << static_cast<int>(bytes[i]) << ' ';
  for (int i = count; i < bytes_a_line; ++i) os << "   ";
  os << " : ";
  for (int i = 0; i < count; ++i) os << (is_letter(bytes[i]) ? static_cast<char>(bytes[i]) : '.');
  os << std::endl;
}

template <class Value>
void write_line(std::ostream& os, char const* label, Value value, int width = 0) {
  os << label << std::setw(width) << value << std::endl;
}

}  // namespace

void dump_block(std::ostream& os, unsigned char const* data, int size) {
  for (int done = 0; done < size; done += bytes_a_line) {
    dump_bytes(os, data + done, std::min(size - done, bytes_a_line));
  }
}

namespace dump {

void line(std::ostream& os, char const* label, int value) { write_line(os, label, value); }

void line(std::ostream& os, char const* label, unsigned int value) { write_line(os, label, value); }

void line(std::ostream& os, char const* label, unsigned long value) { write_line(os, label, value); }

void line(std::ostream& os, char const* label, double value) { write_line(os, label, value); }

void line(std::ostream& os, char const* label, int value, int width) { write_line(os, label, value, width); }

void line(std::ostream& os, char const* label, unsigned long value, int width) {
  write_line(os, label, value, width);
}

void line(std::ostream& os, char const* label, unsigned char value) { write_line(os, label, value); }

void line(std::ostream& os, char const* label, char const* value) { write_line(os, label, value); }

void line(std::ostream& os, char const* label, std::string const& value) {
  write_line(os, label, value.c_str());
}

void block(std::ostream& os, char const* heading, std::vector<unsigned char> const& bytes) {
  os << heading << std::endl;
  dump_block(os, bytes.data(), static_cast<int>(bytes.size()));
}

void block_if_any(std::ostream& os, char const* heading, std::vector<unsigned char> const& bytes) {
  if (!bytes.empty()) block(os, heading, bytes);
}

}  // namespace dump

}  // namespace sivane
