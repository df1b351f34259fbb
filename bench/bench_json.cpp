// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Lines of JSON as the tool prints them, beside the dumps of the same tables.
#include <sivane/tables/any_table.h>

#include <ostream>
#include <streambuf>
#include <vector>

#include "commands/field_json.h"
#include "compare.h"
#include "tables_host.h"

namespace {

class Keeper final : public sivane::bench::TablesHost {
 public:
  std::vector<sivane::AnyTable> tables;

 protected:
  void on_psi_section(int, int, int, unsigned char const* section) override {
    tables.push_back(sivane::parse_table(section, static_cast<std::size_t>(sivane::section_size(section))));
  }
};

/// A stream that only counts what it is given.
class Counter final : public std::streambuf {
 public:
  std::size_t bytes = 0;

 private:
  int overflow(int character) override {
    ++bytes;
    return character;
  }
  std::streamsize xsputn(char const*, std::streamsize size) override {
    bytes += static_cast<std::size_t>(size);
    return size;
  }
};

void print_json(std::vector<sivane::AnyTable> const& tables, std::ostream& out) {
  inspect::JsonWriter json(out);
  sivane::charset::Converter texts;
  for (sivane::AnyTable const& table : tables) {
    json.begin_object();
    inspect::FieldJson fields(json, texts);
    sivane::visit_table(table, fields);
    json.end_object();
    json.end_line();
  }
}

void dump(std::vector<sivane::AnyTable> const& tables, std::ostream& out) {
  for (sivane::AnyTable const& table : tables) {
    std::visit(
        [&out](auto const& any) {
          if constexpr (requires { any.dump_state(out); }) any.dump_state(out);
        },
        table);
  }
}

void lines_of_json(benchmark::State& state) {
  Keeper keeper;
  keeper.push(sivane::bench::tables_stream(500000).bytes);
  Counter printed;
  Counter dumped;
  sivane::bench::compare(
      state, 0, "the time of dumping the tables",
      [&] {
        std::ostream out(&printed);
        print_json(keeper.tables, out);
      },
      [&] {
        std::ostream out(&dumped);
        dump(keeper.tables, out);
      });
  if (keeper.tables.empty() || printed.bytes == 0) state.SkipWithError("there are no tables");
}

}  // namespace

BENCHMARK(lines_of_json)->Name("lines of JSON")->Apply(sivane::bench::timed_by_hand);
