// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Descriptors of an application information table: how an application is started, where its files lie, by
// which transport they arrive (ETSI TS 101 812, 10.7 to 10.10). Their tags are a space of their own.
#pragma once

#include <sivane/descriptors/descriptor.h>
#include <sivane/foundation/application_identifier.h>
#include <sivane/foundation/length_prefixed_string.h>

#include <string>
#include <vector>

namespace sivane {

/// What the descriptors of an AIT share.
class SIVANE_API DescriptorAitBase : public DescriptorBase {
 protected:
  DescriptorAitBase() = default;
  /// For a host that builds one by hand.
  DescriptorAitBase(int descriptor_tag, int descriptor_length) {
    tag = descriptor_tag;
    length = descriptor_length;
  }
  /// Takes tag and length alone.
  explicit DescriptorAitBase(DescriptorBytes descriptor) : DescriptorBase(descriptor) {}
  DescriptorAitBase(DescriptorAitBase const&) = default;
  DescriptorAitBase(DescriptorAitBase&&) = default;
  DescriptorAitBase& operator=(DescriptorAitBase const&) = default;
  DescriptorAitBase& operator=(DescriptorAitBase&&) = default;
  ~DescriptorAitBase() = default;
};

/// What an application needs and how it is shown (10.7.3). Throws `length_error`
/// "application_descriptor: application_profiles_length length mismatch" unless the profiles take 5n bytes.
class SIVANE_API DescriptorAitApplication final : public DescriptorAitBase {
 public:
  /// A profile that the application needs, and its least version.
  class SIVANE_API ApplicationProfile {
   public:
    /// From 5 bytes.
    explicit ApplicationProfile(unsigned char const* p);
    SIVANE_RECORD(ApplicationProfile)

    int application_profile = 0;  ///< 16 bits
    int version_major = 0;        ///< 8 bits
    int version_minor = 0;        ///< 8 bits
    int version_micro = 0;        ///< 8 bits
  };

  SIVANE_DESCRIPTOR(DescriptorAitApplication)
  void _dump_state(std::ostream& os) const override;
  void _reset() override;

  int application_profiles_length = 0;                   ///< 8 bits, bytes
  std::vector<ApplicationProfile> application_profiles;  ///< in the order of the descriptor
  int service_bound_flag = 0;                            ///< 1 bit
  int visibility = 0;                                    ///< 2 bits
  int application_priority = 0;                          ///< 8 bits
  std::vector<unsigned char> transport_protocol_labels;  ///< 8 bits each
};

/// An application's name in several languages (10.7.4.1). Throws `length_error` "application_name_descriptor:
/// 1" where the names do not end with the descriptor.
class SIVANE_API DescriptorAitApplicationName final : public DescriptorAitBase {
 public:
  /// The name in one language.
  class SIVANE_API ApplicationNameInfo {
   public:
    /// `available` is not looked at.
    ApplicationNameInfo(unsigned char const* p, int available, int& consumed);
    SIVANE_RECORD(ApplicationNameInfo)

    char ISO_639_language_code[4] = {};  ///< three characters and a terminating zero
    int application_name_length = 0;     ///< 8 bits
    std::string application_name;        ///< raw
  };

  SIVANE_DESCRIPTOR(DescriptorAitApplicationName)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { application_name_infos.clear(); }

  std::vector<ApplicationNameInfo> application_name_infos;  ///< in the order of the descriptor
};

/// Where an application's icons lie (10.7.4.2).
class SIVANE_API DescriptorAitApplicationIcons final : public DescriptorAitBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorAitApplicationIcons)
  void _dump_state(std::ostream& os) const override;
  void _reset() override;

  int icon_locator_length = 0;                     ///< 8 bits
  std::string icon_locator;                        ///< raw
  int icon_flags = 0;                              ///< 16 bits, one a size and shape
  std::vector<unsigned char> reserved_future_use;  ///< raw, to the end of the descriptor
};

/// Applications of other services that may run on (10.7.5). Throws `length_error`
/// "external_application_authorisation_descriptor: 1" unless the length is 7n.
class SIVANE_API DescriptorAitExternalApplicationAuthorisation final : public DescriptorAitBase {
 public:
  /// One application, and the priority that it may have.
  class SIVANE_API AitExternalApplicationAuthorisationInfo {
   public:
    /// From 7 bytes.
    explicit AitExternalApplicationAuthorisationInfo(unsigned char const* p);
    SIVANE_RECORD(AitExternalApplicationAuthorisationInfo)

    ApplicationIdentifier application_identifer;  ///< whom it is about; spelt as in stored documents
    int application_priority = 0;                 ///< 8 bits
  };

  SIVANE_DESCRIPTOR(DescriptorAitExternalApplicationAuthorisation)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { external_application_authorisation_infos.clear(); }

  std::vector<AitExternalApplicationAuthorisationInfo>
      external_application_authorisation_infos;  ///< in the order of the descriptor
};

/// By which transport an application's files arrive (10.8.1). Of the two selectors the one that `protocol_id`
/// names is filled; the other stays at its zeros.
class SIVANE_API DescriptorAitTransportProtocol final : public DescriptorAitBase {
 public:
  /// An object carousel, with `protocol_id` 1.
  class SIVANE_API TransportOC {
   public:
    /// `consumed` is 8, or 2 where `remote_connection` is 0.
    TransportOC(unsigned char const* p, int& consumed);
    SIVANE_RECORD(TransportOC)
    /// Prints its lines.
    void _dump_state(std::ostream& os) const;

    int remote_connection = 0;    ///< 1 bit; the next three are there only where it is set
    int original_network_id = 0;  ///< 16 bits
    int transport_stream_id = 0;  ///< 16 bits
    int service_id = 0;           ///< 16 bits
    int component_tag = 0;        ///< 8 bits
  };

  /// IP over the multiplex, with `protocol_id` 2. The URLs that may follow are not kept.
  class SIVANE_API TransportIP {
   public:
    /// `consumed` is 8, or 2 where `remote_connection` is 0.
    TransportIP(unsigned char const* p, int& consumed);
    SIVANE_RECORD(TransportIP)
    /// Prints its lines.
    void _dump_state(std::ostream& os) const;

    int remote_connection = 0;    ///< 1 bit; the next three are there only where it is set
    int original_network_id = 0;  ///< 16 bits
    int transport_stream_id = 0;  ///< 16 bits
    int service_id = 0;           ///< 16 bits
    int alignment_indicator = 0;  ///< 1 bit
  };

  SIVANE_DESCRIPTOR(DescriptorAitTransportProtocol)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}

  int protocol_id = 0;               ///< 16 bits
  int transport_protocol_label = 0;  ///< 8 bits
  TransportOC transport_OC;          ///< where `protocol_id` is 1
  TransportIP transport_IP;          ///< where `protocol_id` is 2
};

/// IPv4 addresses and where they are carried. Throws `length_error` "routing_ipv4_descriptor: 1" unless
/// the length is 11n.
class SIVANE_API DescriptorAitRoutingIPv4 final : public DescriptorAitBase {
 public:
  /// One stream of the address.
  class SIVANE_API RoutingIPv4Info {
   public:
    /// From 11 bytes.
    explicit RoutingIPv4Info(unsigned char const* p);
    SIVANE_RECORD(RoutingIPv4Info)

    int component_tag = 0;          ///< 8 bits
    unsigned int address = 0;       ///< 32 bits
    int port_number = 0;            ///< 16 bits
    unsigned int address_mask = 0;  ///< 32 bits
  };

  SIVANE_DESCRIPTOR(DescriptorAitRoutingIPv4)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { routing_ipv4_infos.clear(); }

  std::vector<RoutingIPv4Info> routing_ipv4_infos;  ///< in the order of the descriptor
};

/// IPv6 addresses and where they are carried. Throws `length_error` "routing_ipv4_descriptor: 1", the
/// same text as of IPv4, unless the length is 35n.
class SIVANE_API DescriptorAitRoutingIPv6 final : public DescriptorAitBase {
 public:
  /// One stream of the address. `SaveSection` throws `error` "failed", as that of no other record does, where
  /// the document refuses an address.
  class SIVANE_API RoutingIPv6Info {
   public:
    /// From 35 bytes.
    explicit RoutingIPv6Info(unsigned char const* p);
    SIVANE_RECORD(RoutingIPv6Info)
    unsigned char const* get_address() const { return address; }            ///< 16 bytes
    unsigned char const* get_address_mask() const { return address_mask; }  ///< 16 bytes

    unsigned char address[16] = {};       ///< 16 bytes
    unsigned char address_mask[16] = {};  ///< 16 bytes
    int component_tag = 0;                ///< 8 bits
    int port_number = 0;                  ///< 16 bits
  };

  SIVANE_DESCRIPTOR(DescriptorAitRoutingIPv6)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { routing_ipv6_infos.clear(); }

  std::vector<RoutingIPv6Info> routing_ipv6_infos;  ///< in the order of the descriptor
};

/// Where the download information of a carousel's modules is found (10.8.3.3). Throws `length_error`
/// "dii_location_descriptor: 1" unless the length is 1 + 4n.
class SIVANE_API DescriptorAitDIILocation final : public DescriptorAitBase {
 public:
  /// Where one DII message is.
  class SIVANE_API DIILocationInfo {
   public:
    /// From 4 bytes.
    explicit DIILocationInfo(unsigned char const* p);
    SIVANE_RECORD(DIILocationInfo)

    int DII_identification = 0;  ///< 15 bits
    int association_tag = 0;     ///< 16 bits
  };

  SIVANE_DESCRIPTOR(DescriptorAitDIILocation)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { dii_location_infos.clear(); }

  int transport_protocol_label = 0;                 ///< 8 bits
  std::vector<DIILocationInfo> dii_location_infos;  ///< in the order of the descriptor
};

/// Modules to fetch ahead of time (10.8.3.2). Throws `length_error` "prefetch_descriptor: 1" where the labels
/// do not end with the descriptor.
class SIVANE_API DescriptorAitPreFetch final : public DescriptorAitBase {
 public:
  /// A label of modules to be fetched ahead.
  class SIVANE_API PreFetchInfo {
   public:
    /// `available` is not looked at.
    PreFetchInfo(unsigned char const* p, int available, int& consumed);
    SIVANE_RECORD(PreFetchInfo)

    int label_length = 0;       ///< 8 bits
    std::string label;          ///< raw
    int prefetch_priority = 0;  ///< 8 bits
  };

  SIVANE_DESCRIPTOR(DescriptorAitPreFetch)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { prefetch_info.clear(); }

  int transport_protocol_label = 0;         ///< 8 bits
  std::vector<PreFetchInfo> prefetch_info;  ///< in the order of the descriptor
};

/// Parameters of a DVB-J application (10.9.1).
class SIVANE_API DescriptorDVB_J_Application final : public DescriptorAitBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorDVB_J_Application)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { parameter_infos.clear(); }

  std::vector<LengthPrefixedString> parameter_infos;  ///< in the order of the descriptor
};

/// Where a DVB-J application begins (10.9.2).
class SIVANE_API DescriptorDVB_J_ApplicationLocation final : public DescriptorAitBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorDVB_J_ApplicationLocation)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}

  LengthPrefixedString base_directory;       ///< its length, 8 bits, and text
  LengthPrefixedString classpath_extension;  ///< its length, 8 bits, and text
  std::string initial_class;                 ///< the rest of the descriptor
};

/// Parameters of a DVB-HTML application (10.10.1).
class SIVANE_API DescriptorDVB_HTML_Application final : public DescriptorAitBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorDVB_HTML_Application)
  void _dump_state(std::ostream& os) const override;
  void _reset() override { parameter.clear(); }

  LengthPrefixedString application_id;  ///< the application ids, undivided
  std::string parameter;                ///< the rest of the descriptor
};

/// Where a DVB-HTML application begins (10.10.2).
class SIVANE_API DescriptorDVB_HTML_ApplicationLocation final : public DescriptorAitBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorDVB_HTML_ApplicationLocation)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}

  LengthPrefixedString physical_root;  ///< its length, 8 bits, and bytes
  std::string initial_path;            ///< the rest of the descriptor
};

/// Which documents belong to a DVB-HTML application (10.10.3).
class SIVANE_API DescriptorDVB_HTML_ApplicationLocationBoundary final : public DescriptorAitBase {
 public:
  SIVANE_DESCRIPTOR(DescriptorDVB_HTML_ApplicationLocationBoundary)
  void _dump_state(std::ostream& os) const override;
  void _reset() override {}

  LengthPrefixedString label;      ///< its length, 8 bits, and text
  std::string regular_expression;  ///< the rest of the descriptor
};

}  // namespace sivane
