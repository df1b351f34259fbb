// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>
#include <sivane/foundation/reader.h>
#include <sivane/tables/section.h>

#include <iosfwd>
#include <vector>

namespace sivane {

/// Running status table: which events begin or end just now (ETSI EN 300 468, 5.2.7). Accepts table id 0x71.
/// Throws "descriptor start end mismatch" unless section_length is 9n; the whole entries stay.
class SIVANE_API Rst final : public PsiBase {
 public:
  /// One event, and whether it runs.
  class SIVANE_API Status {
   public:
    Status() = default;
    /// `size` is 9 on the way out; on the way in it is not looked at.
    Status(unsigned char const* data, int& size);
    /// From where the reader is, and steps over it.
    explicit Status(Reader& reader);
    /// From its element of a document. Throws `error` where a part is missing.
    explicit Status(void* node);
    /// Saves it on its element. False once the document refuses.
    bool _save_stream_info(void* document, void* element) const;
    SIVANE_FIELDS(Status)
    /// Prints its lines.
    void dump_state(std::ostream& os) const;

    int transport_stream_id = 0;  ///< 16 bits
    int original_network_id = 0;  ///< 16 bits
    int service_id = 0;           ///< 16 bits
    int event_id = 0;             ///< 16 bits
    int running_status = 0;       ///< 3 bits
  };

  SIVANE_TABLE
  bool is_syntax_indicator_valid(int indicator) const override;

  std::vector<Status> status_infos;  ///< in section order
};

}  // namespace sivane
