// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/catalogue/program.h>

#include <string>

namespace inspect {

/// What an elementary stream carries: by its stream_type (ISO/IEC 13818-1, table 2-34), and where that leaves
/// it open by its descriptors (ETSI EN 300 468, 6.2).
std::string stream_type_text(sivane::catalogue::ElementaryStream const& stream);
/// What supplementary sound is for, by its editorial_classification, which stands in hexadecimal where it has
/// no name.
std::string purpose_text(sivane::catalogue::SupplementaryAudio const& audio);

}  // namespace inspect
