// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: the programs of the stream.
#pragma once

#include <sivane/catalogue/book.h>
#include <sivane/catalogue/program.h>
#include <sivane/tables/pat.h>
#include <sivane/tables/pmt.h>

namespace sivane::catalogue {

class ProgramBook {
 public:
  Taken take(Pat const& pat, Desk& desk);
  Taken take(Pmt const& pmt, Desk& desk);
  /// Takes those programs away that the PAT names no more.
  void drop(Names const& gone, Desk& desk);

  Book<ProgramKey, Program> const& programs() const { return programs_; }

 private:
  Book<ProgramKey, Program> programs_;
};

}  // namespace sivane::catalogue
