// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/descriptors/descriptor_set.h>
#include <sivane/foundation/export.h>
#include <sivane/foundation/reader.h>
#include <sivane/tables/section.h>

#include <iosfwd>
#include <memory>
#include <vector>

namespace sivane {

/// The head of a stream entry on the wire, as an overlay.
struct _PMT_INFO {         // NOLINT(bugprone-reserved-identifier): its name in hosts
  unsigned char bytes[5];  ///< up to its descriptors
};

/// One elementary stream of a program.
class SIVANE_API PmtStreamInfo : public DescriptorSet {
 public:
  PmtStreamInfo() = default;
  /// `size` is the bytes left in the loop on the way in, and nothing behind them is read; on the way out
  /// those consumed, 5 and `es_info_length`. Throws "too little data" where fewer than 5 are left (so for a
  /// size of 0 or below), "descriptor start end mismatch" where the descriptors leave what is left. A last
  /// descriptor that runs over the entry and stays within `size` is not noticed.
  PmtStreamInfo(_PMT_INFO* entry, int& size);
  /// From where the reader is, and steps over it.
  explicit PmtStreamInfo(Reader& reader);
  /// From its element of a document. Throws `error` where a part is missing.
  explicit PmtStreamInfo(void* node);
  /// Saves it on its element. False once the document refuses.
  bool _save_stream_info(void* document, void* element) const;
  SIVANE_FIELDS(PmtStreamInfo)
  /// Prints its lines.
  void dump_state(std::ostream& os) const;

  int stream_type = 0;                                             ///< 8 bits
  int elementary_pid = 0;                                          ///< 13 bits
  std::vector<std::shared_ptr<DescriptorBase const>> descriptors;  ///< the host's: only dumped
  int es_info_length = 0;                                          ///< 12 bits, bytes
};

/// Program map table: the streams of one program (ISO/IEC 13818-1, 2.4.4.8). `context_id` is the
/// program_number. Accepts table id 0x02. Its dump prints the descriptors of eight kinds, its entries' those
/// of ten.
///
/// Throws "too little data" where the head leaves the section or fewer than 5 bytes are left for an entry,
/// "descriptor start end mismatch" where the program's descriptors do not end at their length or the entries
/// at the CRC.
class SIVANE_API Pmt final : public PsiTableBase, public DescriptorSet {
 public:
  SIVANE_TABLE
  bool is_valid_syntax_indicator(int indicator) const override;

  /// Appends copies of the program's own CA descriptors and then of each stream's.
  void get_all_ca_descriptors(std::vector<DescriptorCa>& out) const;

  int pcr_pid = 0;                                                 ///< 13 bits
  std::vector<PmtStreamInfo> stream_infos;                         ///< in section order
  std::vector<std::shared_ptr<DescriptorBase const>> descriptors;  ///< the host's: only dumped
};

}  // namespace sivane
