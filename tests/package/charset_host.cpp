// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// A C++17 host of the installed sivane::charset: a Cyrillic name with its selector, and a table of its own.
#include <sivane/charset/charset.h>

#include <iostream>
#include <string>

int main() {
  unsigned char const field[] = {0x05, 0x01, 0xBA, 0xD8, 0xDD, 0xDE};
  int used = 0;
  sivane::Text const text(field, used);
  sivane::charset::Options options;
  options.default_table = "ISO-8859-1";
  sivane::charset::Converter converter(options);
  std::string const converted = converter.utf8(text) + ' ' + converter.utf8("Caf\xE9");
  std::cout << converted << '\n';
  return converted == "\xD0\x9A\xD0\xB8\xD0\xBD\xD0\xBE Caf\xC3\xA9" ? 0 : 1;
}
