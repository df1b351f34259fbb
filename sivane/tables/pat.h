// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>
#include <sivane/foundation/reader.h>
#include <sivane/tables/section.h>

#include <iosfwd>
#include <vector>

namespace sivane {

/// Program association table: which PID carries the PMT of which program (ISO/IEC 13818-1, 2.4.4.3).
/// `context_id` is the transport_stream_id. Accepts table id 0x00.
/// Throws `length_error` "Pat parse error" unless section_length is 9 + 4n.
class SIVANE_API Pat final : public PsiTableBase {
 public:
  /// One program. `program_number` 0 is an entry like any other; its PID is that of the NIT.
  class SIVANE_API program_info {
   public:
    program_info() = default;
    /// From where the reader is, and steps over it.
    explicit program_info(Reader& reader);
    SIVANE_FIELDS(program_info)
    /// Prints its lines.
    void dump_state(std::ostream& os) const;

    int program_number = 0;   ///< 16 bits
    int program_map_pid = 0;  ///< 13 bits
  };

  SIVANE_TABLE

  /// `index` must be below `get_program_info_size`.
  program_info const& get_program_info(int index) const;
  /// How many programs there are.
  unsigned int get_program_info_size() const;

  std::vector<program_info> program_infos;  ///< in section order
};

}  // namespace sivane
