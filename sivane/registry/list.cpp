// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/registry/list.h>

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace sivane::registry {

namespace {

using Bad = std::invalid_argument;

/// Also keeps a slip in an id of 32 bits from filling the memory.
constexpr std::uint32_t longest_run = 0x10000;

struct Run {
  std::uint32_t first;
  std::uint32_t last;
  std::string name;
};

std::uint32_t read_id(std::string_view text, std::size_t digits) {
  std::uint32_t id = 0;
  char const* const end = text.data() + text.size();
  if (text.size() != digits + 2 || !text.starts_with("0x") ||
      std::from_chars(text.data() + 2, end, id, 16).ptr != end) {
    throw Bad("'" + std::string(text) + "' is not 0x and " + std::to_string(digits) + " hexadecimal digits");
  }
  return id;
}

/// The printable characters of ISO 8859-1: in UTF-8 one byte, or two of which the first is 0xC2 or 0xC3.
std::string latin1(std::string_view utf8) {
  std::string name;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    auto const byte = static_cast<unsigned char>(utf8[i]);
    if (byte < 0x20 || byte == 0x7F) throw Bad("a tab or another control character in the name");
    if (byte < 0x80) {
      name += utf8[i];
      continue;
    }
    auto const next = static_cast<unsigned char>(++i < utf8.size() ? utf8[i] : 0);
    if ((byte != 0xC2 || next < 0xA0 || next > 0xBF) && (byte != 0xC3 || next < 0x80 || next > 0xBF)) {
      throw Bad("a character that ISO 8859-1 has not got");
    }
    name += static_cast<char>((byte & 3) << 6 | (next & 0x3F));
  }
  return name;
}

Run read_run(std::string_view line, std::size_t digits) {
  std::size_t const tab = line.find('\t');
  if (tab == std::string_view::npos) throw Bad("no tab between ids and name");
  std::string_view const ids = line.substr(0, tab);
  std::size_t const dash = std::min(ids.find('-'), ids.size());
  std::uint32_t const first = read_id(ids.substr(0, dash), digits);
  std::uint32_t const last = dash < ids.size() ? read_id(ids.substr(dash + 1), digits) : first;
  if (last < first) throw Bad("the run ends before it begins");
  if (last - first >= longest_run) throw Bad("the run has more than 65536 ids");
  if (tab + 1 == line.size()) throw Bad("no name after the tab");
  return {first, last, latin1(line.substr(tab + 1))};
}

class ListReader {
 public:
  void read_line(std::string_view line) {
    if (line.empty()) return end_head();
    if (list_.rows.empty()) list_.digits = line.find_first_of("-\t") == 10 ? 8 : 4;
    Run const run = read_run(line, list_.digits);
    if (previous_ > run.first) throw Bad("begins at a lower id than the line above it");
    previous_ = run.first;
    for (std::uint32_t offset = 0; offset <= run.last - run.first; ++offset) {
      list_.rows.push_back({run.first + offset, run.name});
    }
  }

  List end() {
    if (list_.rows.size() == list_.head)
      throw Bad("the list ends without rows, or with none below the empty line");
    sort(list_.head, list_.rows.size());
    return std::move(list_);
  }

 private:
  void end_head() {
    if (list_.rows.empty() || list_.head > 0) throw Bad("an empty line that is not the one below the head");
    list_.head = list_.rows.size();
    sort(0, list_.head);
    previous_ = 0;
  }
  /// Rows of one id stay in the order of their lines.
  void sort(std::size_t from, std::size_t to) {
    auto const row = [this](std::size_t i) { return list_.rows.begin() + static_cast<std::ptrdiff_t>(i); };
    std::stable_sort(row(from), row(to), [](Row const& a, Row const& b) { return a.id < b.id; });
  }

  List list_;
  std::uint32_t previous_ = 0;
};

}  // namespace

List read_list(std::istream& in, std::string const& path) {
  ListReader reader;
  int number = 0;
  try {
    for (std::string line; std::getline(in, line);) {
      ++number;
      reader.read_line(line);
    }
    return reader.end();
  } catch (Bad const& failure) {
    throw std::runtime_error(path + ':' + std::to_string(number) + ": " + failure.what());
  }
}

}  // namespace sivane::registry
