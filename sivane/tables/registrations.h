// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>

#include <cstddef>
#include <vector>

namespace sivane {

/// A table on a PID, as `Demux::add_psi_handler` is asked for it.
struct Registration {
  int pid;       ///< 13 bits
  int table_id;  ///< 8 bits
};

/// The tables that have a class and, in every stream, the same PID (ETSI EN 300 468, 5.1.3).
SIVANE_API std::vector<Registration> usual_registrations();

/// The tables whose PIDs a section of `size` bytes names: the program maps of a PAT, the AITs and carousels
/// of a program map. None where the section does not parse.
SIVANE_API std::vector<Registration> registrations_named_by(unsigned char const* section, std::size_t size);

}  // namespace sivane
