// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/catalogue_command.h"

#include <sivane/sivane.h>

#include "console.h"

namespace inspect {

namespace {

template <class Class>
bool add(Table const& table, sivane::catalogue::Catalogue& catalogue) {
  Class const* const same = table.as<Class>();
  if (same != nullptr) catalogue.add(*same);
  return same != nullptr;
}

template <class... Classes>
void add_one_of(Table const& table, sivane::catalogue::Catalogue& catalogue) {
  static_cast<void>((add<Classes>(table, catalogue) || ...));
}

sivane::catalogue::Options options_of(Showing const& showing) {
  sivane::catalogue::Options options;
  options.texts = showing.charset;
  return options;
}

}  // namespace

CatalogueCommand::CatalogueCommand(Showing const& showing)
    : out_(showing.out), catalogue_(options_of(showing)) {}

void CatalogueCommand::show(Section const& section) {
  using namespace sivane;
  if (auto const table = table_of(section)) {
    add_one_of<Eit, Sdt, Pmt, Nit, Bat, Pat, Cat, Rst, Tdt, Tot>(*table, catalogue_);
  }
}

void CatalogueCommand::finish() {
  if (!print(catalogue_, out_)) note(nothing());
  if (catalogue_.left_out() > 0) {
    report(grouped(static_cast<long long>(catalogue_.left_out())) +
           " entries were left out: too many for the memory");
  }
}

}  // namespace inspect
