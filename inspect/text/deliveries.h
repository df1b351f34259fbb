// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/catalogue/network.h>

#include <string>

namespace inspect {

/// "cable 346 MHz, 6.9 Msymbol/s, 64-QAM", "DVB-T2 474 MHz, PLP 1, T2 system 4660, 8 MHz wide".
std::string delivery_text(sivane::catalogue::Delivery const& delivery);

}  // namespace inspect
