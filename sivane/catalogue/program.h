// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/catalogue/compared.h>
#include <sivane/foundation/export.h>

#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace sivane::catalogue {

/// A conditional access system and the PID of its messages (ISO/IEC 13818-1, 2.6.16).
struct ConditionalAccess {
  int system = 0;  ///< CA_system_ID, 16 bits
  int pid = 0;     ///< CA_PID, 13 bits
  /// The members, as they are compared.
  auto tied() const { return std::tie(system, pid); }
};

/// A stream of a program.
struct ElementaryStream {
  /// What its descriptors tell of it beside its stream_type.
  enum class Coding { untold, ac3, enhanced_ac3, dts, aac, ac4, subtitles, ttml, teletext, vbi };
  /// What it is to a viewer.
  enum class Kind { video, audio, subtitles, teletext, data };

  int pid = 0;                            ///< 13 bits
  int stream_type = 0;                    ///< 8 bits
  int component_tag = -1;                 ///< 8 bits; -1 where it has none
  Coding coding = Coding::untold;         ///< the first of the enumeration that holds
  std::vector<std::string> languages;     ///< ISO 639 codes in rising order, each once
  std::vector<ConditionalAccess> access;  ///< that its entry names
  /// By stream_type and, where that is private data, by the coding.
  SIVANE_API Kind kind() const;
  /// The members, as they are compared.
  auto tied() const { return std::tie(pid, stream_type, component_tag, coding, languages, access); }
};

/// A program by the PAT and its PMT.
struct Program {
  static constexpr int no_pcr = 0x1FFF;  ///< in place of a PID

  std::optional<int> map_pid;             ///< of its PMT, 13 bits; none where no PAT has named it
  bool is_mapped = false;                 ///< its PMT was read, which all that follows is from
  int pcr_pid = no_pcr;                   ///< 13 bits
  std::vector<ConditionalAccess> access;  ///< of the whole program
  std::vector<ElementaryStream> streams;  ///< in the order of the PMT
  /// The members, as they are compared.
  auto tied() const { return std::tie(map_pid, is_mapped, pcr_pid, access, streams); }
};

}  // namespace sivane::catalogue
