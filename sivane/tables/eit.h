// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/descriptors/descriptor_set.h>
#include <sivane/foundation/export.h>
#include <sivane/foundation/reader.h>
#include <sivane/foundation/time.h>
#include <sivane/tables/section.h>

#include <iosfwd>
#include <vector>

namespace sivane {

/// Event information table: events of one service, present and following or a schedule (ETSI EN 300
/// 468, 5.2.4). `context_id` is the service_id. Accepts table ids 0x4E to 0x6F. Its dump prints no descriptor
/// and, with an event, leaves the stream decimal.
///
/// Throws "descriptor start end mismatch" where the events do not end at the CRC or section_length is
/// below 15.
class SIVANE_API Eit final : public PsiTableBase {
 public:
  /// One event. A last descriptor that runs over the entry is not noticed.
  class SIVANE_API EventInfo : public DescriptorSet {
   public:
    EventInfo() = default;
    /// `size` is the bytes consumed on the way out, 12 and `descriptors_length`; on the way in it is not
    /// looked at: the bytes that `descriptors_length` claims must be there. Throws "descriptor start end
    /// mismatch" where a descriptor would leave them.
    EventInfo(unsigned char const* data, int& size);
    /// From where the reader is, and steps over it.
    explicit EventInfo(Reader& reader);
    /// From its element of a document. Throws `error` where a part is missing.
    explicit EventInfo(void* node);
    /// Saves it on its element. False once the document refuses.
    bool _save_stream_info(void* document, void* element) const;
    SIVANE_FIELDS(EventInfo)
    /// Prints its lines.
    void dump_state(std::ostream& os) const;

    int event_id = 0;            ///< 16 bits
    int running_status = 0;      ///< 3 bits
    int free_CA_mode = 0;        ///< 1 bit, 1 is scrambled
    int descriptors_length = 0;  ///< 12 bits, bytes
    DateTime start_time;         ///< UTC
    Duration duration;           ///< hours, minutes and seconds
  };

  SIVANE_TABLE
  bool is_valid_syntax_indicator(int indicator) const override;
  /// The name of a table id of the class.
  static char const* get_table_id_text(int table_id);

  int transport_stream_id = 0;          ///< 16 bits
  int original_network_id = 0;          ///< 16 bits
  int segment_last_section_number = 0;  ///< 8 bits
  int last_table_id = 0;                ///< 8 bits
  std::vector<EventInfo> event_infos;   ///< in section order
};

}  // namespace sivane
