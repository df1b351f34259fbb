// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "text/service_types.h"

#include <iterator>

namespace inspect {

namespace {

/// By service_type.
constexpr std::string_view texts[] = {
    "",
    "digital television service",
    "digital radio sound service",
    "teletext service",
    "NVOD reference service",
    "NVOD time-shifted service",
    "mosaic service",
    "FM radio service",
    "DVB SRM service",
    "",
    "advanced codec digital radio sound service",
    "H.264/AVC mosaic service",
    "data broadcast service",
    "",
    "RCS map",
    "RCS FLS",
    "DVB MHP service",
    "MPEG-2 HD digital television service",
    "",
    "",
    "",
    "",
    "H.264/AVC SD digital television service",
    "H.264/AVC SD NVOD time-shifted service",
    "H.264/AVC SD NVOD reference service",
    "H.264/AVC HD digital television service",
    "H.264/AVC HD NVOD time-shifted service",
    "H.264/AVC HD NVOD reference service",
    "H.264/AVC plano-stereoscopic HD digital television service",
    "H.264/AVC plano-stereoscopic HD NVOD time-shifted service",
    "H.264/AVC plano-stereoscopic HD NVOD reference service",
    "HEVC digital television service",
    "HEVC UHD digital television service",
    "VVC digital television service",
    "AVS3 digital television service",
};

}  // namespace

std::string_view service_type_text(int type) {
  bool const is_known = type >= 0 && type < static_cast<int>(std::size(texts));
  return is_known ? texts[type] : std::string_view();
}

}  // namespace inspect
