// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// A C++17 host of the installed sivane::catalogue: the programs of a PAT.
#include <sivane/catalogue/catalogue.h>
#include <sivane/tables/pat.h>

#include <iostream>
#include <variant>

int main() {
  sivane::Pat pat;
  pat.current_next_indicator = 1;
  pat.program_infos.resize(1);
  pat.program_infos[0].program_number = 7;
  sivane::catalogue::Catalogue catalogue;
  for (sivane::catalogue::Change const& change : catalogue.add(pat)) {
    std::cout << "program " << std::get<sivane::catalogue::ProgramKey>(change.key).number << '\n';
  }
  return catalogue.programs().count({7}) == 1 && catalogue.add(pat).empty() ? 0 : 1;
}
