// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: what a catalogue holds, and how a table gets in.
#pragma once

#include <sivane/catalogue/about_stream.h>
#include <sivane/catalogue/catalogue.h>
#include <sivane/catalogue/event_book.h>
#include <sivane/catalogue/network_book.h>
#include <sivane/catalogue/program_book.h>
#include <sivane/catalogue/service_book.h>
#include <sivane/tables/cat.h>

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace sivane::catalogue {

struct Catalogue::State {
  explicit State(Options const& chosen) : options(chosen), desk(chosen.memory, chosen.texts) {}

  /// A table of long form: looks at its version, takes it, and what it does not name any more away.
  template <class Table>
  Changes add(Table const& table);
  /// One of short form, which has no version.
  Changes add(Rst const& rst);
  Changes add(Tot const& tot);
  Changes set_time(DateTime const& utc);
  Changes add_section(int pid, unsigned char const* section, std::size_t size);
  /// Good until networks change, or another stream is asked about.
  AboutStream const& about(StreamKey const& stream);
  /// What the desk noted.
  Changes told() { return std::exchange(desk.changes, {}); }

  Options options;
  Desk desk;
  Networks networks;
  Bouquets bouquets;
  ServiceBook services;
  ProgramBook programs;
  EventBook events;
  std::vector<ConditionalAccess> access;
  std::optional<Time> time;
  std::vector<LocalTimeOffset> local_times;
  std::size_t problems = 0;

 private:
  Taken take(Pat const& pat, bool /*starts_anew*/) { return programs.take(pat, desk); }
  Taken take(Pmt const& pmt, bool /*starts_anew*/) { return programs.take(pmt, desk); }
  Taken take(Nit const& nit, bool starts_anew);
  Taken take(Bat const& bat, bool starts_anew) { return bouquets.take(bat, starts_anew, desk); }
  Taken take(Sdt const& sdt, bool /*starts_anew*/) { return services.take(sdt, desk); }
  Taken take(Eit const& eit, bool /*starts_anew*/) { return events.take(eit, desk); }
  Taken take(Cat const& cat, bool starts_anew);
  void drop(SubTableKey table, Names const& gone);
  Changes repeat(SectionId const& id);

  bool is_misplaced(int pid, SectionId const& id) const;
  Changes parse_long(unsigned char const* section, std::size_t size);
  Changes parse_short(unsigned char const* section, std::size_t size);
  template <class Table>
  void parse(unsigned char const* section, std::size_t size, std::initializer_list<int> tags, Table& table);
  template <class Table>
  Changes parse_and_add(unsigned char const* section, std::size_t size, std::initializer_list<int> tags);

  std::optional<AboutStream> about_;  // that was asked about last: lists ask about its services one by one
};

template <class Table>
Changes Catalogue::State::add(Table const& table) {
  if (table.current_next_indicator != 1) return {};
  SectionId const id = section_id(table);
  if (desk.versions.repeats(id)) return repeat(id);
  bool const starts_anew = desk.versions.starts_anew(id);
  if (!desk.versions.prepare(id, desk.budget)) return {};
  Taken taken = take(table, starts_anew);
  drop(id.table, desk.versions.take(id, std::move(taken.names), taken.is_cut, desk.budget));
  return told();
}

}  // namespace sivane::catalogue
