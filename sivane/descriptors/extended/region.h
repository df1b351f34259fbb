// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Regions, and changes in networks (ETSI EN 300 468 V1.17.1, 6.4).
#pragma once

#include <sivane/descriptors/extended/extended_descriptor.h>
#include <sivane/foundation/time.h>

#include <string>
#include <vector>

namespace sivane {

/// Regions that services are meant for.
class SIVANE_API DescriptorTargetRegion final : public ExtendedDescriptor {
 public:
  /// One region; its depth says how many of the codes are given, from the first on.
  class SIVANE_API Region {
   public:
    SIVANE_RECORD(Region)

    bool country_code_flag = false;  ///< 1 bit; whether the region is in a country of its own
    int region_depth = 0;            ///< 2 bits
    char country_code[4] = {};       ///< three characters and a terminating zero
    int primary_region_code = 0;     ///< 8 bits
    int secondary_region_code = 0;   ///< 8 bits
    int tertiary_region_code = 0;    ///< 16 bits
  };

  SIVANE_DESCRIPTOR(DescriptorTargetRegion)
  void _reset() override { regions.clear(); }

  char country_code[4] = {};    ///< three characters and a terminating zero
  std::vector<Region> regions;  ///< in the order of the descriptor
};

/// Names of regions.
class SIVANE_API DescriptorTargetRegionName final : public ExtendedDescriptor {
 public:
  /// One region; the primary code is always given, the others as its depth says.
  class SIVANE_API Region {
   public:
    SIVANE_RECORD(Region)

    int region_depth = 0;           ///< 2 bits
    std::string region_name;        ///< raw, with a length of 6 bits
    int primary_region_code = 0;    ///< 8 bits
    int secondary_region_code = 0;  ///< 8 bits, from depth 2 on
    int tertiary_region_code = 0;   ///< 16 bits, with depth 3
  };

  SIVANE_DESCRIPTOR(DescriptorTargetRegionName)
  void _reset() override { regions.clear(); }

  char country_code[4] = {};           ///< three characters and a terminating zero
  char ISO_639_language_code[4] = {};  ///< three characters and a terminating zero
  std::vector<Region> regions;         ///< in the order of the descriptor
};

/// What will change in cells of a network, and when.
class SIVANE_API DescriptorNetworkChangeNotify final : public ExtendedDescriptor {
 public:
  /// One change.
  class SIVANE_API Change {
   public:
    SIVANE_RECORD(Change)

    int network_change_id = 0;          ///< 8 bits
    int network_change_version = 0;     ///< 8 bits
    DateTime start_time_of_change;      ///< 40 bits, UTC
    Duration change_duration;           ///< 24 bits
    int receiver_category = 0;          ///< 3 bits
    bool invariant_ts_present = false;  ///< 1 bit; whether the stream is given that stays as it is
    int change_type = 0;                ///< 4 bits
    int message_id = 0;                 ///< 8 bits, of a DescriptorMessage
    int invariant_ts_tsid = 0;          ///< 16 bits
    int invariant_ts_onid = 0;          ///< 16 bits
  };

  /// Those of one cell.
  class SIVANE_API Cell {
   public:
    SIVANE_RECORD(Cell)

    int cell_id = 0;              ///< 16 bits; 0 is every cell
    std::vector<Change> changes;  ///< with a length of 8 bits
  };

  SIVANE_DESCRIPTOR(DescriptorNetworkChangeNotify)
  void _reset() override { cells.clear(); }

  std::vector<Cell> cells;  ///< in the order of the descriptor
};

}  // namespace sivane
