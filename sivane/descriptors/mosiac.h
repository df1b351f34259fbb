// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/descriptors/descriptor.h>

#include <vector>

namespace sivane {

/// A screen of cells, each of which stands for a service (ETSI EN 300 468, 6.2.21). Throws `length_error`
/// "mosiac_descriptor" where the cells do not end with the descriptor, and what they throw. Spelt as in
/// stored documents.
class SIVANE_API DescriptorMosiac final : public DescriptorBase {
 public:
  /// The cell stands for a bouquet.
  class SIVANE_API BouquetInfo {
   public:
    SIVANE_RECORD(BouquetInfo)
    /// Prints its lines.
    void _dump_state(std::ostream& os) const;

    int bouquet_id = 0;  ///< 16 bits
  };

  /// The cell stands for a service.
  class SIVANE_API ServiceInfo {
   public:
    SIVANE_RECORD(ServiceInfo)
    /// Prints its lines.
    void _dump_state(std::ostream& os) const;

    int original_network_id = 0;  ///< 16 bits
    int transport_stream_id = 0;  ///< 16 bits
    int service_id = 0;           ///< 16 bits
  };

  /// The same fields for another kind of link.
  class SIVANE_API ServiceInfo2 : public ServiceInfo {
   public:
    using ServiceInfo::ServiceInfo;
  };

  /// The cell stands for an event.
  class SIVANE_API EventInfo {
   public:
    SIVANE_RECORD(EventInfo)
    /// Prints its lines.
    void _dump_state(std::ostream& os) const;

    int original_network_id = 0;  ///< 16 bits
    int transport_stream_id = 0;  ///< 16 bits
    int service_id = 0;           ///< 16 bits
    int event_id = 0;             ///< 16 bits
  };

  /// Throws `syntax_error` unless `cell_linkage_info` is 1 to 4.
  class SIVANE_API CellInfo {
   public:
    /// `size` is not looked at.
    CellInfo(unsigned char const* p, int size, int& consumed);
    SIVANE_RECORD(CellInfo)
    /// Prints its lines.
    void _dump_state(std::ostream& os) const;

    int logical_cell_id = 0;                        ///< 6 bits
    int logical_call_presentation_info = 0;         ///< 3 bits; spelt as in stored documents
    int elementary_cell_field_length = 0;           ///< 8 bits
    std::vector<unsigned char> elementary_cell_id;  ///< 6 bits each
    int cell_linkage_info = 0;                      ///< 8 bits: which of the four below is filled, from 1 on
    BouquetInfo bouquetinfo;                        ///< where `cell_linkage_info` is 1
    ServiceInfo serviceinfo;                        ///< where it is 2
    ServiceInfo2 serviceinfo2;                      ///< where it is 3
    EventInfo eventinfo;                            ///< where it is 4
  };

  SIVANE_DESCRIPTOR(DescriptorMosiac)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { cellinfo.clear(); }

  int mosiac_entry_point = 0;                     ///< 1 bit
  int number_of_horizontal_elementary_cells = 0;  ///< 3 bits, one less than the number
  int number_of_vertical_elementary_cells = 0;    ///< 3 bits, one less than the number
  std::vector<CellInfo> cellinfo;                 ///< in the order of the descriptor
};

}  // namespace sivane
