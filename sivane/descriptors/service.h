// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Descriptors that name and cross-reference services and bouquets (ETSI EN 300 468; clause numbers are those
// of V1.13.1).
#pragma once

#include <sivane/descriptors/descriptor.h>
#include <sivane/foundation/multilingual_name_info.h>

#include <string>
#include <vector>

namespace sivane {

/// The bouquet's name (6.2.4).
class SIVANE_API DescriptorBouquetName final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorBouquetName)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { bouquet_name.clear(); }

  std::string bouquet_name;  ///< raw, a character table selector included
};

/// A service's type and names (6.2.33).
class SIVANE_API DescriptorService final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorService)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}
  /// The text of a service_type of 8 bits.
  static char const* get_service_type_text(int type);

  int service_type = 0;       ///< 8 bits
  std::string provider_name;  ///< raw, a character table selector included
  std::string service_name;   ///< raw, a character table selector included
};

/// Countries in which a service is, or is not, to be received (6.2.10). Throws `length_error`
/// "country_availability_descriptor" unless the length is 1 + 3n.
class SIVANE_API DescriptorCountryAvailability final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorCountryAvailability)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}

  int country_availability_flag = 0;      ///< 1 bit
  std::vector<std::string> country_code;  ///< three characters each
};

/// Another service that has to do with this one (6.2.19).
class SIVANE_API DescriptorLinkage final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorLinkage)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { private_data_byte.clear(); }

  int transport_stream_id = 0;                   ///< 16 bits
  int original_network_id = 0;                   ///< 16 bits
  int service_id = 0;                            ///< 16 bits
  int linkage_type = 0;                          ///< 8 bits
  std::vector<unsigned char> private_data_byte;  ///< the rest, whatever the type
};

/// Time-shifted copies of a service (6.2.26). Throws `length_error` "NVOD_reference_descriptor" unless the
/// length is 6n.
class SIVANE_API DescriptorNVODReference final : public DescriptorBase {
 public:
  /// One service.
  class SIVANE_API service {
   public:
    SIVANE_RECORD(service)
    /// Prints its lines.
    void _dump_state(std::ostream& os) const;

    int transport_stream_id = 0;  ///< 16 bits
    int original_network_id = 0;  ///< 16 bits
    int service_id = 0;           ///< 16 bits
  };

  SIVANE_DESCRIPTOR(DescriptorNVODReference)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { service_list.clear(); }

  std::vector<service> service_list;  ///< in the order of the descriptor
};

/// The service that this one is a copy of (6.2.45).
class SIVANE_API DescriptorTimeShiftedService final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorTimeShiftedService)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}

  int reference_service_id = 0;  ///< 16 bits
};

/// Conditional access systems of a bouquet, service or event (6.2.5). An odd last byte is ignored.
class SIVANE_API DescriptorCAIdentifier final : public DescriptorBase {
 public:
  /// One CA system.
  class SIVANE_API CAIdentifierID {
   public:
    CAIdentifierID() = default;
    /// From where the reader is, and steps over it.
    explicit CAIdentifierID(Reader& r) : CA_system_id(r.u16()) {}
    /// Loads it from its element. Throws `error` where an attribute or child is missing.
    void Parse(void* node);
    /// Saves it on its element, which `document` has made. False once the document refuses.
    bool SaveSection(void* document, void* element) const;
    SIVANE_FIELDS(CAIdentifierID)
    /// Prints its lines.
    void dump_state(std::ostream& os) const;

    int CA_system_id = 0;  ///< 16 bits
  };

  SIVANE_DESCRIPTOR(DescriptorCAIdentifier)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { CA_system_id.clear(); }

  std::vector<CAIdentifierID> CA_system_id;  ///< in the order of the descriptor
};

/// A telephone number (6.2.42).
class SIVANE_API DescriptorTelephone final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorTelephone)
  void _dump_state(std::ostream& os) const override;
  void _reset() override;

  int foriegn_availability = 0;              ///< 1 bit; spelt as in stored documents
  int connection_type = 0;                   ///< 5 bits
  int country_prefix_length = 0;             ///< 2 bits
  int international_area_code_length = 0;    ///< 3 bits
  int operator_code_length = 0;              ///< 2 bits
  int national_area_code_length = 0;         ///< 3 bits
  int core_number_length = 0;                ///< 4 bits
  std::string country_prefix_char;           ///< as many characters as its length says
  std::string international_area_code_char;  ///< as many characters as its length says
  std::string operator_code_char;            ///< as many characters as its length says
  std::string national_area_code_char;       ///< as many characters as its length says
  std::string core_number_char;              ///< as many characters as its length says
};

/// The bouquet's name in several languages (6.2.22). Throws `syntax_error` where the names do not end with
/// the descriptor, and what `MultilingualNameInfo` throws.
class SIVANE_API DescriptorMultilingualBouquetName final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorMultilingualBouquetName)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { nameinfo.clear(); }

  std::vector<MultilingualNameInfo> nameinfo;  ///< in the order of the descriptor
};

/// A service's names in several languages (6.2.25). Throws `syntax_error` where the names do not end with the
/// descriptor, and what its records throw.
class SIVANE_API DescriptorMultilingualServiceName final : public DescriptorBase {
 public:
  /// Throws `length_error` "multilingual_service_name_info_descriptor" where fewer than 5 bytes are left, the
  /// same with ":2" where the provider's name does not fit, with ":3" where the service's does not.
  class SIVANE_API MultilingualServiceNameInfo {
   public:
    /// `size` bytes may be read at `p`; `consumed` is what it takes of them.
    MultilingualServiceNameInfo(unsigned char const* p, int size, int& consumed);
    SIVANE_RECORD(MultilingualServiceNameInfo)
    /// Prints its lines.
    void _dump_state(std::ostream& os) const;

    char ISO_639_language_code[4] = {};  ///< three characters and a terminating zero
    int provider_len = 0;                ///< 8 bits
    std::string providername;            ///< raw
    int service_len = 0;                 ///< 8 bits
    std::string servicename;             ///< raw
  };

  SIVANE_DESCRIPTOR(DescriptorMultilingualServiceName)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { servicenameinfo.clear(); }

  std::vector<MultilingualServiceNameInfo> servicenameinfo;  ///< in the order of the descriptor
};

/// Whose private descriptors follow (6.2.31).
class SIVANE_API DescriptorPrivateDataSpecifier final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorPrivateDataSpecifier)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}

  unsigned int private_data_specifier = 0;  ///< 32 bits
};

/// Where a service has moved to (6.2.36).
class SIVANE_API DescriptorServiceMove final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorServiceMove)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}

  int new_original_network_id = 0;  ///< 16 bits
  int new_transport_stream_id = 0;  ///< 16 bits
  int new_service_id = 0;           ///< 16 bits
};

/// A textual service identifier (ETSI TS 101 812). The body is not kept.
class SIVANE_API DescriptorServiceIdentifier final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorServiceIdentifier)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}
};

/// Cells in which a service is, or is not, available (6.2.34). Throws `item_length_error` unless the length
/// is 1 + 2n.
class SIVANE_API DescriptorServiceAvailability final : public DescriptorBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorServiceAvailability)
  void _dump_state(std::ostream&) const override {}
  void _reset() override {}

  int availability_flag = 0;  ///< 1 bit
  std::vector<int> cell_id;   ///< 16 bits each
};

}  // namespace sivane
