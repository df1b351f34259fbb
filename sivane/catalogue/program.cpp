// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/catalogue/program.h>

namespace sivane::catalogue {

namespace {

using Coding = ElementaryStream::Coding;
using Kind = ElementaryStream::Kind;

Kind kind_of_coding(Coding coding) {
  switch (coding) {
    case Coding::ac3:
    case Coding::enhanced_ac3:
    case Coding::dts:
    case Coding::aac:
    case Coding::ac4:
      return Kind::audio;
    case Coding::subtitles:
    case Coding::ttml:
      return Kind::subtitles;
    case Coding::teletext:
      return Kind::teletext;
    case Coding::vbi:
    case Coding::untold:
      break;
  }
  return Kind::data;
}

}  // namespace

/// By ISO/IEC 13818-1, table 2-34.
Kind ElementaryStream::kind() const {
  switch (stream_type) {
    case 0x01:
    case 0x02:
    case 0x10:
    case 0x1B:
    case 0x1E:
    case 0x1F:
    case 0x20:
    case 0x21:
    case 0x22:
    case 0x23:
    case 0x24:
    case 0x25:
    case 0x33:
    case 0x34:
    case 0x35:
      return Kind::video;
    case 0x03:
    case 0x04:
    case 0x0F:
    case 0x11:
    case 0x1C:
    case 0x2D:
    case 0x2E:
      return Kind::audio;
    case 0x06:
      return kind_of_coding(coding);
    default:
      return Kind::data;
  }
}

}  // namespace sivane::catalogue
