// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <section_builder.h>

#include <string_view>

namespace sample {

using sivane::testing::Bytes;
using sivane::testing::make_descriptor;
using sivane::testing::operator+;  // a vector of bytes is not found to belong there

Bytes u8(int value);
Bytes u16(int value);
Bytes u32(unsigned int value);
/// 13 bits behind three reserved ones.
Bytes pid_field(int pid);
Bytes characters(std::string_view text);
/// The characters behind their number in one byte.
Bytes text_field(std::string_view text);
/// The bytes behind their number in 12 bits; `high_bits` are the four in front of it.
Bytes loop_field(Bytes const& bytes, int high_bits = 0xF);

struct Time {
  int hour, minute, second;
};
/// Three bytes of BCD.
Bytes bcd(Time time);
/// The day of the sample (Modified Julian Date) and a time.
Bytes time_field(Time time);

}  // namespace sample
