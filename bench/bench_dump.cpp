// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Dumps, beside one insertion into the stream for each label, number and line end.
#include <algorithm>
#include <charconv>
#include <functional>
#include <iomanip>
#include <sstream>
#include <string>
#include <string_view>

#include "compare.h"
#include "tables_host.h"

namespace {

/// Text that is given to a stream as it is, and a number behind it with its width.
struct Piece {
  std::string text;
  bool has_number = false;
  unsigned long number = 0;
  int width = 0;
};

/// A dump taken apart again.
struct Line {
  bool is_decimal = false;
  std::vector<Piece> pieces = std::vector<Piece>(1);
};

bool is_number(std::string_view text, int base, unsigned long& number) {
  if (std::any_of(text.begin(), text.end(), [](char c) { return 'a' <= c && c <= 'f'; })) return false;
  auto const [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number, base);
  return failure == std::errc() && end == text.data() + text.size();
}

/// Words are set apart by blanks, and the numbers of times by the signs within them.
Line taken_apart(std::string const& text) {
  Line line;
  line.is_decimal = text.starts_with("start_time") || text.starts_with("duration");
  for (std::size_t at = 0; at < text.size();) {
    std::size_t const end = std::min(text.find_first_of(line.is_decimal ? " /-:" : " ", at), text.size());
    std::string const word = text.substr(at, end - at);
    Piece& piece = line.pieces.back();
    piece.has_number = at > 0 && is_number(word, line.is_decimal ? 10 : 16, piece.number);
    piece.width = line.is_decimal ? 0 : static_cast<int>(word.size());
    if (!piece.has_number) piece.text += word;
    if (piece.has_number) line.pieces.emplace_back();
    if (end < text.size()) line.pieces.back().text += text[end];
    at = end + 1;
  }
  return line;
}

void insert(std::ostream& os, std::vector<Line> const& lines) {
  os << std::hex << std::uppercase << std::unitbuf << std::setfill('0');
  for (Line const& line : lines) {
    os << (line.is_decimal ? std::dec : std::hex);
    for (Piece const& piece : line.pieces) {
      if (!piece.text.empty()) os << piece.text;
      if (piece.has_number) os << std::setw(piece.width) << piece.number;
    }
    os << std::endl;
  }
}

/// Tables as a host keeps them.
class Keeper final : public sivane::bench::TablesHost {
 public:
  void dump(std::ostream& os) const {
    for (auto const& dump_table : dumps_) dump_table(os);
  }

 protected:
  void on_psi_section(int, int table_id, int, unsigned char const* section) override {
    sivane::bench::with_table(table_id, section, [this](auto const& table) {
      dumps_.emplace_back([table](std::ostream& os) { table.dump_state(os); });
    });
  }

 private:
  std::vector<std::function<void(std::ostream&)>> dumps_;
};

/// A stream into memory that is there from the start.
class Memory : public std::streambuf {
 public:
  explicit Memory(std::size_t size) : bytes_(size, ' ') {}
  template <class Write>
  void take(Write write) {
    setp(bytes_.data(), bytes_.data() + bytes_.size());
    std::ostream os(this);
    write(os);
  }
  std::string_view text() const { return {pbase(), static_cast<std::size_t>(pptr() - pbase())}; }

 private:
  std::string bytes_;
};

void dump_tables(benchmark::State& state) {
  Keeper tables;
  tables.push(sivane::bench::tables_stream(500000).bytes);
  std::ostringstream whole;
  tables.dump(whole);
  std::vector<Line> lines;
  std::istringstream in(whole.str());
  for (std::string line; std::getline(in, line);) lines.push_back(taken_apart(line));
  Memory dumped(whole.str().size());
  Memory inserted(whole.str().size());
  sivane::bench::compare(
      state, whole.str().size(), "the time of dumping the tables",
      [&] { inserted.take([&](std::ostream& os) { insert(os, lines); }); },
      [&] { dumped.take([&](std::ostream& os) { tables.dump(os); }); });
  if (dumped.text() != inserted.text() || lines.empty()) state.SkipWithError("the texts differ");
}

}  // namespace

BENCHMARK(dump_tables)->Name("inserting what dumps say, item by item")->Apply(sivane::bench::timed_by_hand);
