// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/descriptors/descriptor.h>

#include <vector>

namespace sivane {

/// A screen of cells, each of which stands for a service (ETSI EN 300 468, 6.2.21). Throws `length_error`
/// "mosiac_descriptor" where the cells do not end with the descriptor, and what they throw.
class SIVANE_API DescriptorMosiac final : public DescriptorBase {
 public:
  class SIVANE_API BouquetInfo {
   public:
    BouquetInfo() = default;
    explicit BouquetInfo(Reader& r);
    void Parse(void* node);
    bool SaveSection(void* document, void* element) const;
    void _dump_state(std::ostream& os) const;

    int bouquet_id = 0;  ///< 16 bits
  };

  class SIVANE_API ServiceInfo {
   public:
    ServiceInfo() = default;
    explicit ServiceInfo(Reader& r);
    void Parse(void* node);
    bool SaveSection(void* document, void* element) const;
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

  class SIVANE_API EventInfo {
   public:
    EventInfo() = default;
    explicit EventInfo(Reader& r);
    void Parse(void* node);
    bool SaveSection(void* document, void* element) const;
    void _dump_state(std::ostream& os) const;

    int original_network_id = 0;  ///< 16 bits
    int transport_stream_id = 0;  ///< 16 bits
    int service_id = 0;           ///< 16 bits
    int event_id = 0;             ///< 16 bits
  };

  /// Throws `syntax_error` unless `cell_linkage_info` is 1 to 4.
  class SIVANE_API CellInfo {
   public:
    CellInfo() = default;
    /// `size` plays no part.
    CellInfo(unsigned char const* p, int size, int& consumed);
    explicit CellInfo(Reader& r);
    void Parse(void* node);
    bool SaveSection(void* document, void* element) const;
    void _dump_state(std::ostream& os) const;

    int logical_cell_id = 0;                        ///< 6 bits
    int logical_call_presentation_info = 0;         ///< 3 bits
    int elementary_cell_field_length = 0;           ///< 8 bits
    std::vector<unsigned char> elementary_cell_id;  ///< 6 bits each
    int cell_linkage_info = 0;                      ///< 8 bits: which of the four below is filled, from 1 on
    BouquetInfo bouquetinfo;
    ServiceInfo serviceinfo;
    ServiceInfo2 serviceinfo2;
    EventInfo eventinfo;
  };

  SIVANE_DESCRIPTOR(DescriptorMosiac)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { cellinfo.clear(); }

  int mosiac_entry_point = 0;                     ///< 1 bit
  int number_of_horizontal_elementary_cells = 0;  ///< 3 bits, one less than the number
  int number_of_vertical_elementary_cells = 0;    ///< 3 bits, one less than the number
  std::vector<CellInfo> cellinfo;
};

}  // namespace sivane
