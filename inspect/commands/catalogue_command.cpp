// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/catalogue_command.h"

#include "console.h"

namespace inspect {

namespace {

sivane::catalogue::Options options_of(Showing const& showing) {
  sivane::catalogue::Options options;
  options.texts = showing.charset;
  return options;
}

}  // namespace

CatalogueCommand::CatalogueCommand(Showing const& showing)
    : out_(showing.out), catalogue_(options_of(showing)) {}

void CatalogueCommand::show(Section const& section) {
  if (auto const table = table_of(section)) catalogue_.add(table->any());
}

void CatalogueCommand::finish() {
  if (!print(catalogue_, out_)) note(nothing());
  if (catalogue_.left_out() > 0) {
    report(grouped(static_cast<long long>(catalogue_.left_out())) +
           " entries were left out: too many for the memory");
  }
}

}  // namespace inspect
