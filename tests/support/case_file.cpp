// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "case_file.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace sivane::testing {
namespace {

constexpr std::size_t key_size = 7;
constexpr std::string_view between = " | ";

std::string path_of(std::string const& file) { return SIVANE_TESTS "/" + file; }

bool is_action(std::string const& key) {
  return key == "hex" || key == "more" || key == "reset" || key == "over";
}

std::string value_of(std::string const& line, std::string const& key) {
  if (line.size() <= key_size) return "";
  std::string value = line.substr(key_size) + '\n';
  if (key != "dump") return value;
  for (std::size_t bar; (bar = value.find(between)) != std::string::npos;)
    value.replace(bar, between.size(), 1, '\n');
  return value;
}

/// Lines as a case file has them.
std::string as_written(std::string const& key, std::string const& lines) {
  std::istringstream in(lines);
  std::string text;
  for (std::string line; std::getline(in, line);) text += (key + "       ").substr(0, key_size) + line + '\n';
  return text.empty() ? key + '\n' : text;
}

std::string hexadecimal(int value) {
  std::ostringstream text;
  text << (value < 0 ? "-" : "") << std::hex << (value < 0 ? -value : value);
  return text.str();
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
      blocks.back().lines.push_back({text, number});
    } else {
      blocks.push_back({text, {}});
      inside = true;
    }
  }
  return blocks;
}

std::vector<Step> read_steps(std::string const& file) {
  std::vector<Step> steps;
  for (Block const& block : read_blocks(file)) {
    std::string last;
    for (auto const& [text, number] : block.lines) {
      std::string const key = text.substr(0, text.find(' '));
      if (is_action(key) && key != last) steps.push_back({block.title, key, "", {}, path_of(file), number});
      if (steps.empty() || last.empty() > is_action(key))
        throw std::runtime_error(path_of(file) + ": " + text);
      (is_action(key) ? steps.back().argument : steps.back().lines[key]) += value_of(text, key);
      last = key;
    }
  }
  if (steps.empty()) throw std::runtime_error("nothing in " + path_of(file));
  return steps;
}

std::string difference(Step const& step, KeyedLines const& outcome) {
  std::string text;
  for (auto const& [key, lines] : outcome) {
    auto const expected = step.lines.find(key);
    bool const may_be_left_out = lines.empty() || (key != "throws" && key != "left");
    bool const is_right = expected == step.lines.end() ? may_be_left_out : expected->second == lines;
    if (!is_right) text += as_written(key, lines);
  }
  for (auto const& [key, lines] : step.lines) {
    if (key != "after" && key != "size" && !outcome.contains(key))
      text += "nothing looks at " + as_written(key, lines);
  }
  if (text.empty()) return "";
  return step.file + ':' + std::to_string(step.line) + ": " + step.title + '\n' + text;
}

std::string printable(std::string_view raw) {
  constexpr char digits[] = "0123456789abcdef";
  std::string text;
  for (char const c : raw) {
    auto const byte = static_cast<unsigned char>(c);
    bool const is_plain = c >= ' ' && c <= '~' && c != '\\';
    text += is_plain ? std::string(1, c) : std::string{'\\', digits[byte >> 4], digits[byte & 0xF]};
  }
  return text;
}

std::string printable_lines(std::string const& dump) {
  std::string text;
  std::istringstream lines(dump);
  for (std::string line; std::getline(lines, line);) {
    line = printable(line) + (lines.eof() ? "\\" : "");
    if (line.ends_with(' ')) line.replace(line.size() - 1, 1, "\\20");
    text += line + '\n';
  }
  return text;
}

std::string text_runs(int first, int last, std::function<std::string(int)> const& text_of) {
  std::string const others = text_of(last);
  std::string runs;
  for (int value = first; value <= last;) {
    std::string const text = text_of(value);
    int end = value;
    while (end < last && text_of(end + 1) == text) ++end;
    std::string const to = end > value ? ".." + hexadecimal(end) : "";
    if (text != others) runs += hexadecimal(value) + to + ' ' + text + '\n';
    value = end + 1;
  }
  return runs + "else " + others + '\n';
}

}  // namespace sivane::testing
