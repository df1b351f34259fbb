// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>
#include <sivane/tables/section.h>
#include <sivane/tables/transport_stream_entry.h>

#include <iosfwd>
#include <vector>

namespace sivane {

/// Bouquet association table: the transport streams of a bouquet (ETSI EN 300 468, 5.2.2). `context_id` is
/// the bouquet_id. Accepts table id 0x4A. Its dump prints no descriptor of its own.
///
/// Throws what a `Nit` throws. `reset` leaves the table's own set of descriptors.
class SIVANE_API Bat final : public PsiTableBase, public DescriptorSet {
 public:
  /// Prints its general descriptors.
  class SIVANE_API Stream_info : public TransportStreamEntry {
   public:
    using TransportStreamEntry::TransportStreamEntry;
    /// Prints its lines.
    void dump_state(std::ostream& os) const;
  };

  SIVANE_TABLE
  bool is_valid_syntax_indicator(int indicator) const override;
  /// `stream_infos`.
  std::vector<Stream_info> const& get_stream_infos() const { return stream_infos; }

  /// The table's own with tag 9, which its `get_CA_descriptors` therefore never has. Documents do not carry
  /// them.
  std::vector<DescriptorCa> ca_descriptors;
  std::vector<Stream_info> stream_infos;  ///< in section order
};

}  // namespace sivane
