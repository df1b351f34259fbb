// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/catalogue/compared.h>
#include <sivane/descriptors/extended/audio.h>
#include <sivane/foundation/export.h>
#include <sivane/registry/codes.h>

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

/// What sound is for that is mixed into the main one or heard in its place (ETSI EN 300 468, 6.4).
struct SupplementaryAudio {
  bool is_complete = false;  ///< mix_type: heard by itself; otherwise mixed into the main sound
  int classification = 0;    ///< editorial_classification, 5 bits
  std::string language;      ///< ISO 639 code; empty where none is given
  /// Of the classification, as "audio description".
  char const* purpose() const {
    return DescriptorSupplementaryAudio::get_editorial_classification_text(classification);
  }
  /// The members, as they are compared.
  auto tied() const { return std::tie(is_complete, classification, language); }
};

/// A stream of a program.
struct ElementaryStream {
  /// What its descriptors tell of it beside its stream_type.
  enum class Coding { untold, ac3, enhanced_ac3, dts, aac, ac4, subtitles, ttml, teletext, vbi };
  /// What it is to a viewer.
  enum class Kind { video, audio, subtitles, teletext, data };

  int pid = 0;                                      ///< 13 bits
  int stream_type = 0;                              ///< 8 bits
  int component_tag = -1;                           ///< 8 bits; -1 where it has none
  Coding coding = Coding::untold;                   ///< the first of the enumeration that holds
  std::vector<std::string> languages;               ///< ISO 639 codes in rising order, each once
  std::optional<SupplementaryAudio> supplementary;  ///< none where no descriptor tells that it is
  std::vector<ConditionalAccess> access;            ///< that its entry names
  /// Of its stream_type, in plain words; null where that is reserved or a user's own.
  char const* type_name() const { return stream_type_name(stream_type); }
  /// By stream_type and, where that is private data, by the coding.
  SIVANE_API Kind kind() const;
  /// The members, as they are compared.
  auto tied() const {
    return std::tie(pid, stream_type, component_tag, coding, languages, supplementary, access);
  }
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
