// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>
#include <sivane/tables/section.h>
#include <sivane/tables/transport_stream_entry.h>

#include <iosfwd>
#include <vector>

namespace sivane {

/// Network information table: the transport streams of a network (ETSI EN 300 468, 5.2.1). `context_id` is
/// the network_id. Accepts table ids 0x40 and 0x41. Its dump prints no descriptor of its own.
///
/// Throws "too little data" where the body is shorter than the two length fields, the lengths do not stay in
/// the section or the entries' is 1 to 5; "descriptor start end mismatch" where the entries do not end at
/// their length. `reset` leaves the table's own set of descriptors.
class SIVANE_API Nit final : public PsiTableBase, public DescriptorSet {
 public:
  /// Prints its general, satellite delivery system and service list descriptors.
  class SIVANE_API Stream_info : public TransportStreamEntry {
   public:
    using TransportStreamEntry::TransportStreamEntry;
    /// Prints its lines.
    void dump_state(std::ostream& os) const;
  };

  Nit();
  SIVANE_TABLE
  bool is_valid_syntax_indicator(int indicator) const override;

  /// The table's own with tag 9, which its `get_CA_descriptors` therefore never has. Documents do not carry
  /// them.
  std::vector<DescriptorCa> ca_descriptors;
  std::vector<Stream_info> stream_infos;  ///< in section order
};

}  // namespace sivane
