// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/descriptors/descriptor_set.h>
#include <sivane/foundation/export.h>
#include <sivane/foundation/reader.h>
#include <sivane/tables/section.h>

#include <iosfwd>
#include <vector>

namespace sivane {

/// Service description table: the services of one transport stream (ETSI EN 300 468, 5.2.3). `context_id` is
/// the transport_stream_id. Accepts table ids 0x42 and 0x46. Entries print their general and service
/// descriptors.
///
/// Throws "too little data" where fewer than 5 bytes are left for an entry, "descriptor start end mismatch"
/// where the entries do not end at the CRC or section_length is below 12.
class SIVANE_API Sdt final : public PsiTableBase {
 public:
  /// One service. A last descriptor that runs over the entry is not noticed.
  class SIVANE_API Service_info : public DescriptorSet {
   public:
    Service_info() = default;
    /// `size` is the bytes available on the way in, and nothing behind them is read; on the way out those
    /// consumed, 5 and the length of the descriptors. Throws "too little data" where fewer than 5 are
    /// available (so for a size of 0 or below), "descriptor start end mismatch" where the descriptors leave
    /// what is available.
    Service_info(unsigned char const* data, int& size);
    /// From where the reader is, and steps over it.
    explicit Service_info(Reader& reader);
    /// From its element of a document. Throws `error` where a part is missing.
    explicit Service_info(void* node);
    /// Saves it on its element. False once the document refuses.
    bool _save_stream_info(void* document, void* element) const;
    SIVANE_FIELDS(Service_info)
    /// Prints its lines.
    void dump_state(std::ostream& os) const;

    int service_id = 0;                  ///< 16 bits
    int EIT_schedule_flag = 0;           ///< 1 bit
    int EIT_present_following_flag = 0;  ///< 1 bit
    int running_status = 0;              ///< 3 bits
    int free_CA_mode = 0;                ///< 1 bit, 1 is scrambled
  };

  SIVANE_TABLE
  bool is_valid_syntax_indicator(int indicator) const override;

  int original_network_id = 0;              ///< 16 bits
  std::vector<Service_info> service_infos;  ///< in section order
};

}  // namespace sivane
