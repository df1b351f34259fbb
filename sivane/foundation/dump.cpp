// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/dump.h>
#include <sivane/foundation/dump_line.h>
#include <sivane/foundation/dump_lines.h>

#include <algorithm>

namespace sivane {

namespace {

constexpr int bytes_a_line = 16;

bool is_letter(unsigned char byte) { return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z'); }

void dump_bytes(std::ostream& os, unsigned char const* bytes, int count) {
  dump::Line line(os << std::hex);
  for (int i = 0; i < count; ++i) line.number(int{bytes[i]}, 2).text(' ');
  for (int i = count; i < bytes_a_line; ++i) line.text("   ");
  line.text(" : ");
  for (int i = 0; i < count; ++i) line.text(is_letter(bytes[i]) ? static_cast<char>(bytes[i]) : '.');
  line.end();
}

}  // namespace

void dump_block(std::ostream& os, unsigned char const* data, int size) {
  for (int done = 0; done < size; done += bytes_a_line) {
    dump_bytes(os, data + done, std::min(size - done, bytes_a_line));
  }
}

namespace dump {

void line(std::ostream& os, char const* label, int value, int width) {
  Line(os).text(label).number(value, width).end();
}

void line(std::ostream& os, char const* label, unsigned int value) {
  Line(os).text(label).number(value).end();
}

void line(std::ostream& os, char const* label, unsigned long value, int width) {
  Line(os).text(label).number(value, width).end();
}

void line(std::ostream& os, char const* label, double value) { Line(os).text(label).number(value).end(); }

void line(std::ostream& os, char const* label, unsigned char value) {
  Line(os).text(label).text(static_cast<char>(value)).end();
}

void line(std::ostream& os, char const* label, char const* value) { Line(os).text(label).text(value).end(); }

void line(std::ostream& os, char const* label, std::string const& value) { line(os, label, value.c_str()); }

void block(std::ostream& os, char const* heading, std::vector<unsigned char> const& bytes) {
  Line(os).text(heading).end();
  dump_block(os, bytes.data(), static_cast<int>(bytes.size()));
}

void block_if_any(std::ostream& os, char const* heading, std::vector<unsigned char> const& bytes) {
  if (!bytes.empty()) block(os, heading, bytes);
}

}  // namespace dump

}  // namespace sivane
