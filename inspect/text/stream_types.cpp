// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "text/stream_types.h"

#include <algorithm>
#include <iterator>

#include "text/hexadecimal.h"

namespace inspect {

using sivane::catalogue::ElementaryStream;

namespace {

constexpr int private_pes = 0x06;

struct Row {
  int type;
  char const* text;
};

constexpr Row rows[] = {
    {0x01, "MPEG-1 video"},
    {0x02, "MPEG-2 video"},
    {0x03, "MPEG-1 audio"},
    {0x04, "MPEG-2 audio"},
    {0x05, "private sections"},
    {private_pes, "private data"},
    {0x07, "MHEG"},
    {0x08, "DSM-CC"},
    {0x09, "H.222.1"},
    {0x0A, "DSM-CC multiprotocol encapsulation"},
    {0x0B, "DSM-CC carousel"},
    {0x0C, "DSM-CC stream events"},
    {0x0D, "DSM-CC sections"},
    {0x0E, "auxiliary data"},
    {0x0F, "AAC audio (ADTS)"},
    {0x10, "MPEG-4 video"},
    {0x11, "AAC audio (LATM)"},
    {0x12, "MPEG-4 SL in PES packets"},
    {0x13, "MPEG-4 SL in sections"},
    {0x14, "DSM-CC synchronised download"},
    {0x15, "metadata in PES packets"},
    {0x16, "metadata in sections"},
    {0x17, "metadata in a data carousel"},
    {0x18, "metadata in an object carousel"},
    {0x19, "metadata in a synchronised download"},
    {0x1A, "IPMP of MPEG-2"},
    {0x1B, "H.264 video"},
    {0x1C, "MPEG-4 audio"},
    {0x1D, "MPEG-4 text"},
    {0x1E, "auxiliary video"},
    {0x1F, "H.264 scalable layer"},
    {0x20, "H.264 further view"},
    {0x21, "JPEG 2000 video"},
    {0x22, "MPEG-2 further view"},
    {0x23, "H.264 further view of plano-stereoscopic video"},
    {0x24, "HEVC video"},
    {0x25, "HEVC temporal layer"},
    {0x27, "timeline (TEMI)"},
    {0x2D, "MPEG-H 3D audio"},
    {0x2E, "MPEG-H 3D audio, auxiliary"},
    {0x33, "VVC video"},
    {0x34, "VVC temporal layer"},
    {0x35, "EVC video"},
    {0x36, "LCEVC enhancement"},
    {0x7F, "IPMP"},
};

char const* text_of(int stream_type) {
  auto const row = std::ranges::find(rows, stream_type, &Row::type);
  return row == std::end(rows) ? nullptr : row->text;
}

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
    case Coding::subtitles:
      return "DVB subtitles";
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
  char const* const text = text_of(stream.stream_type);
  return text != nullptr ? text : "stream type " + c_hexadecimal(stream.stream_type, 1);
}

}  // namespace inspect
