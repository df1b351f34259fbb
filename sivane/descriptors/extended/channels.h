// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Channel numbers. Their tags are private: what they mean is said by the private_data_specifier in force.
#pragma once

#include <sivane/descriptors/extended/extended_descriptor.h>

#include <string>
#include <vector>

namespace sivane {

/// A service and its channel number of 10 bits.
class SIVANE_API ChannelNumber {
 public:
  SIVANE_RECORD(ChannelNumber)

  int service_id = 0;                 ///< 16 bits
  bool visible_service_flag = false;  ///< 1 bit; 0 is in no list that a viewer sees
  int logical_channel_number = 0;     ///< 10 bits
};

/// Channel numbers of the European digital receivers' specifier 0x28 (IEC 62216).
class SIVANE_API DescriptorLogicalChannel final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorLogicalChannel)
  void _reset() override { services.clear(); }

  std::vector<ChannelNumber> services;  ///< in the order of the descriptor
};

/// Channel numbers that receivers of high definition use in place of those of a `DescriptorLogicalChannel`,
/// of the same specifier (IEC 62216).
class SIVANE_API DescriptorHDSimulcastLogicalChannel final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorHDSimulcastLogicalChannel)
  void _reset() override { services.clear(); }

  std::vector<ChannelNumber> services;  ///< in the order of the descriptor
};

/// Channel numbers of NorDig's specifier 0x29, version 1 (NorDig Unified Requirements).
class SIVANE_API DescriptorNorDigLogicalChannel final : public ExtendedDescriptor {
 public:
  /// A service and its channel number of 14 bits.
  class SIVANE_API Service {
   public:
    SIVANE_RECORD(Service)

    int service_id = 0;                 ///< 16 bits
    bool visible_service_flag = false;  ///< 1 bit; 0 is in no list that a viewer sees
    int logical_channel_number = 0;     ///< 14 bits
  };

  SIVANE_DESCRIPTOR(DescriptorNorDigLogicalChannel)
  void _reset() override { services.clear(); }

  std::vector<Service> services;  ///< in the order of the descriptor
};

/// Channel numbers of the same specifier, version 2: lists of them, by country (NorDig Unified
/// Requirements).
class SIVANE_API DescriptorNorDigChannelLists final : public ExtendedDescriptor {
 public:
  /// One list.
  class SIVANE_API ChannelList {
   public:
    SIVANE_RECORD(ChannelList)

    int channel_list_id = 0;              ///< 8 bits
    std::string channel_list_name;        ///< raw, with a length of 8 bits
    char country_code[4] = {};            ///< three characters and a terminating zero
    std::vector<ChannelNumber> services;  ///< with a length of 8 bits
  };

  SIVANE_DESCRIPTOR(DescriptorNorDigChannelLists)
  void _reset() override { channel_lists.clear(); }

  std::vector<ChannelList> channel_lists;  ///< in the order of the descriptor
};

}  // namespace sivane
