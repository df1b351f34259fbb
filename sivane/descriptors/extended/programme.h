// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What recorders and guides go by: identifiers of contents, pictures, messages, what may be done with a
// programme, and subtitles (ETSI TS 102 323 V1.6.1; ETSI EN 300 468 V1.17.1, 6.2 and 6.4; ETSI EN 303 560
// V1.1.1). Texts are raw, a character table selector included.
#pragma once

#include <sivane/descriptors/extended/extended_descriptor.h>

#include <string>
#include <vector>

namespace sivane {

/// The authority of content references that name none (TS 102 323, 6.3.3).
class SIVANE_API DescriptorDefaultAuthority final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorDefaultAuthority)
  void _reset() override { default_authority.clear(); }

  std::string default_authority;  ///< a name of the domain name system
};

/// Says that there is related content; it has no fields (TS 102 323, 10.3).
class SIVANE_API DescriptorRelatedContent final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorRelatedContent)
};

/// Whether events that a recorder waits for are on (TS 102 323, 11.2.4).
class SIVANE_API DescriptorTVAId final : public ExtendedDescriptor {
 public:
  /// One of them.
  class SIVANE_API Id {
   public:
    SIVANE_RECORD(Id)

    int TVA_id = 0;          ///< 16 bits
    int running_status = 0;  ///< 3 bits
  };

  SIVANE_DESCRIPTOR(DescriptorTVAId)
  void _reset() override { ids.clear(); }

  std::vector<Id> ids;  ///< in the order of the descriptor
};

/// Which programme or series this is, so that a recorder finds it again (TS 102 323, 12.1).
class SIVANE_API DescriptorContentIdentifier final : public ExtendedDescriptor {
 public:
  /// One content reference.
  class SIVANE_API Crid {
   public:
    SIVANE_RECORD(Crid)

    int crid_type = 0;      ///< 6 bits; 1 an item, 2 a series, 3 a recommendation
    int crid_location = 0;  ///< 2 bits; 0 here, 1 in a table of identifiers, others are reserved
    std::string crid;       ///< with `crid_location` 0
    int crid_ref = 0;       ///< 16 bits, with `crid_location` 1
  };

  SIVANE_DESCRIPTOR(DescriptorContentIdentifier)
  void _reset() override { crids.clear(); }

  /// In the order of the descriptor. Behind one of a reserved location none can be read: it is the last.
  std::vector<Crid> crids;
};

/// Where the service with a receiver's own applications is (EN 300 468, 6.2.49).
class SIVANE_API DescriptorXAITLocation final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorXAITLocation)

  int xait_original_network_id = 0;  ///< 16 bits
  int xait_service_id = 0;           ///< 16 bits
  int xait_version_number = 0;       ///< 5 bits
  int xait_update_policy = 0;        ///< 3 bits
};

/// What may be done with free content (EN 300 468, 6.2.18).
class SIVANE_API DescriptorFTAContentManagement final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorFTAContentManagement)

  bool user_defined = false;                    ///< 1 bit
  bool do_not_scramble = false;                 ///< 1 bit
  int control_remote_access_over_internet = 0;  ///< 2 bits
  bool do_not_apply_revocation = false;         ///< 1 bit
};

/// How a service is scrambled (EN 300 468, 6.2.32).
class SIVANE_API DescriptorScrambling final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorScrambling)

  int scrambling_mode = 0;  ///< 8 bits
};

/// A picture, or a part of one that does not fit in a descriptor (EN 300 468, 6.4).
class SIVANE_API DescriptorImageIcon final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorImageIcon)
  void _reset() override {
    icon_type.clear();
    url.clear();
    icon_data_byte.clear();
  }

  int descriptor_number = 0;                  ///< 4 bits; 0 is the first part
  int last_descriptor_number = 0;             ///< 4 bits
  int icon_id = 0;                            ///< 3 bits
  int icon_transport_mode = 0;                ///< first part, 2 bits; 0 the bytes are here, 1 a URL is
  bool position_flag = false;                 ///< first part, 1 bit; whether a position is given
  int coordinate_system = 0;                  ///< 3 bits
  int icon_horizontal_origin = 0;             ///< 12 bits
  int icon_vertical_origin = 0;               ///< 12 bits
  std::string icon_type;                      ///< first part, a MIME type with a length of 8 bits
  std::string url;                            ///< with `icon_transport_mode` 1
  std::vector<unsigned char> icon_data_byte;  ///< with `icon_transport_mode` 0, and in further parts

 private:
  void read_first_part(Reader& reader);
};

/// A text in one language, to which others refer by its number (EN 300 468, 6.4).
class SIVANE_API DescriptorMessage final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorMessage)
  void _reset() override { text.clear(); }

  int message_id = 0;                  ///< 8 bits
  char ISO_639_language_code[4] = {};  ///< three characters and a terminating zero
  std::string text;                    ///< the rest
};

/// Where a service was before (EN 300 468, 6.4).
class SIVANE_API DescriptorServiceRelocated final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorServiceRelocated)

  int old_original_network_id = 0;  ///< 16 bits
  int old_transport_stream_id = 0;  ///< 16 bits
  int old_service_id = 0;           ///< 16 bits
};

/// Something on another network (EN 300 468, 6.4).
class SIVANE_API DescriptorURILinkage final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorURILinkage)
  void _reset() override {
    uri.clear();
    private_data_byte.clear();
  }

  int uri_linkage_type = 0;                      ///< 8 bits
  std::string uri;                               ///< with a length of 8 bits
  int min_polling_interval = 0;                  ///< types 0 and 1, 16 bits
  std::vector<unsigned char> private_data_byte;  ///< the rest
};

/// Subtitles in TTML (EN 303 560, 5.2.1.1).
class SIVANE_API DescriptorTTMLSubtitling final : public ExtendedDescriptor {
 public:
  SIVANE_DESCRIPTOR(DescriptorTTMLSubtitling)
  void _reset() override {
    dvb_ttml_profile.clear();
    essential_font_id.clear();
    service_name.clear();
  }

  char ISO_639_language_code[4] = {};            ///< three characters and a terminating zero
  int subtitle_purpose = 0;                      ///< 6 bits
  int TTS_suitability = 0;                       ///< 2 bits
  bool essential_font_usage_flag = false;        ///< 1 bit; whether fonts are given
  bool qualifier_present_flag = false;           ///< 1 bit; whether a qualifier is given
  std::vector<unsigned char> dvb_ttml_profile;   ///< 8 bits each, at most 15
  unsigned int qualifier = 0;                    ///< 32 bits
  std::vector<unsigned char> essential_font_id;  ///< 7 bits each
  std::string service_name;                      ///< with a length of 8 bits
};

}  // namespace sivane
