// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "case_file.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace sivane::testing {
namespace {

std::string path_of(std::string const& file) { return SIVANE_TESTS "/" + file; }

/// Lines of a dump that stand in one, as one each.
void append(std::vector<Line>& lines, Line line) {
  std::string const key = line.text.substr(0, 7);
  std::string const between = " | ";
  if (key == "dump   " || key == "reset  ") {
    for (std::size_t bar; (bar = line.text.find(between)) != std::string::npos;) {
      lines.push_back({line.text.substr(0, bar), line.number});
      line.text = key + line.text.substr(bar + between.size());
    }
  }
  lines.push_back(std::move(line));
}

}  // namespace

std::vector<Block> read_blocks(std::string const& file) {
  std::ifstream in(path_of(file));
  if (!in) throw std::runtime_error("no file " + path_of(file));
  std::vector<Block> blocks;
  std::string text;
  bool inside = false;
  for (int number = 1; std::getline(in, text); ++number) {
    if (!text.empty() && text[0] == '#') continue;
    if (text.empty()) {
      inside = false;
    } else if (inside) {
      append(blocks.back().lines, {text, number});
    } else {
      blocks.push_back({text, {}});
      inside = true;
    }
  }
  return blocks;
}

std::vector<Case> read_cases(std::string const& file) {
  std::string const key = "hex    ";
  std::vector<Case> cases;
  for (Block const& block : read_blocks(file)) {
    std::size_t const before = cases.size();
    for (auto const& [text, number] : block.lines) {
      if (text.starts_with(key)) {
        std::size_t const bar = std::min(text.find('|'), text.size());
        std::string const behind = bar < text.size() ? text.substr(bar + 1) : "";
        cases.push_back(
            {block.title, text.substr(key.size(), bar - key.size()), behind, "", path_of(file), number});
      } else if (cases.size() > before) {
        cases.back().text += text + '\n';
      } else {
        throw std::runtime_error(path_of(file) + ": a block without bytes: " + block.title);
      }
    }
  }
  return cases;
}

}  // namespace sivane::testing
