// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "case_file.h"
#include "packet_writer.h"
#include "plain_bytes.h"
#include "run_inspect.h"
#include "section_text.h"

namespace sivane::testing {

/// Backslash and r, t or a line's end stand for a character or, at the end, for no line end.
inline std::string unescape(std::string const& text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\' || i + 1 == text.size()) {
      plain += text[i];
    } else {
      ++i;
      plain += text[i] == 'r' ? '\r' : text[i] == 't' ? '\t' : text[i];
    }
  }
  if (!plain.empty() && plain.back() == '\\') return plain.substr(0, plain.size() - 1);
  return plain + '\n';
}

/// Text in which "{ }" holds bytes, to be written as hexadecimal.
inline std::string with_hex(std::string text) {
  for (std::size_t begin; (begin = text.find('{')) != std::string::npos;) {
    std::size_t const end = text.find('}', begin);
    text = text.substr(0, begin) + hex_text(assemble(text.substr(begin + 1, end - begin - 1))) +
           text.substr(end + 1);
  }
  return unescape(text);
}

inline std::vector<Bytes> sections_in(std::string const& text) {
  std::vector<Bytes> sections;
  for (std::size_t begin = 0; (begin = text.find('{', begin)) != std::string::npos; ++begin) {
    sections.push_back(assemble(text.substr(begin + 1, text.find('}', begin) - begin - 1)));
  }
  return sections;
}

/// The key of a case file's line and what stands from its eighth character on.
inline std::pair<std::string, std::string> split(Line const& line) {
  constexpr std::size_t key_width = 7;
  std::string const key = line.text.substr(0, line.text.find(' '));
  return {key, line.text.size() > key_width ? line.text.substr(key_width) : ""};
}

/// What the lines of a case make up for the tool to read; README.md in the folder of the cases tells how.
/// Throws on a key that is none.
inline Bytes make_input(std::vector<Line> const& lines) {
  PacketWriter packets;
  std::size_t used = 0;  // of what the writer has made
  Bytes input;
  for (Line const& line : lines) {
    auto const& [key, text] = split(line);
    if (key == "line") {
      input = input + characters(with_hex(text));
    } else if (key == "packet") {
      for (Bytes const& section : sections_in(text)) packets.section(std::stoi(text, nullptr, 0), section);
    } else if (key == "dense") {
      packets.dense_sections(std::stoi(text, nullptr, 0), sections_in(text));
    } else if (key == "null") {
      packets.null_packets(std::stoi(text));
    } else if (key == "bytes") {
      input = input + assemble(text);
    } else if (key == "fill") {
      input.resize(input.size() + std::stoul(text.substr(2)), hex(text.substr(0, 2))[0]);
    } else {
      throw std::runtime_error("no key of a case: " + line.text);
    }
    Bytes const& made = packets.stream();
    input.insert(input.end(), made.begin() + static_cast<std::ptrdiff_t>(used), made.end());
    used = made.size();
  }
  return input;
}

}  // namespace sivane::testing
