// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <string>
#include <string_view>

namespace inspect {

/// A text field of DVB, the selector of its character table in front, as Unicode (ETSI EN 300 468, Annex A).
/// A line break or tab becomes a blank; emphasis and all other control characters are left out, so that
/// nothing in a broadcast can steer a terminal. What its table does not have becomes U+FFFD.
std::u32string dvb_text(std::string_view field);

}  // namespace inspect
