// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "text/stream_types.h"

#include "text/hexadecimal.h"

namespace inspect {

using sivane::catalogue::ElementaryStream;

namespace {

constexpr int private_pes = 0x06;

/// What the descriptors tell of private data; null where they tell nothing.
char const* text_of_private(ElementaryStream::Coding coding) {
  using Coding = ElementaryStream::Coding;
  switch (coding) {
    case Coding::ac3:
      return "AC-3 audio";
    case Coding::enhanced_ac3:
      return "enhanced AC-3 audio";
    case Coding::dts:
      return "DTS audio";
    case Coding::aac:
      return "AAC audio";
    case Coding::ac4:
      return "AC-4 audio";
    case Coding::subtitles:
      return "DVB subtitles";
    case Coding::ttml:
      return "TTML subtitles";
    case Coding::teletext:
      return "teletext";
    case Coding::vbi:
      return "VBI data";
    case Coding::untold:
      break;
  }
  return nullptr;
}

}  // namespace

std::string stream_type_text(ElementaryStream const& stream) {
  bool const is_private = stream.stream_type == private_pes;
  if (char const* const text = is_private ? text_of_private(stream.coding) : nullptr) return text;
  char const* const text = stream.type_name();
  return text != nullptr ? text : "stream type " + c_hexadecimal(stream.stream_type, 1);
}

std::string purpose_text(sivane::catalogue::SupplementaryAudio const& audio) {
  std::string const text = audio.purpose();
  return text == "<unknown>" ? c_hexadecimal(audio.classification, 1) : text;
}

}  // namespace inspect
