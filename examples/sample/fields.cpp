// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "fields.h"

namespace sample {

namespace {

constexpr int day_of_the_sample = 61113;  // 14 March 2026

int bcd_byte(int value) { return value / 10 << 4 | value % 10; }

}  // namespace

Bytes u8(int value) { return {static_cast<unsigned char>(value)}; }

Bytes u16(int value) { return u8(value >> 8 & 0xFF) + u8(value & 0xFF); }

Bytes u32(unsigned int value) {
  return u16(static_cast<int>(value >> 16)) + u16(static_cast<int>(value & 0xFFFF));
}

Bytes pid_field(int pid) { return u16(0xE000 | pid); }

Bytes characters(std::string_view text) { return {text.begin(), text.end()}; }

Bytes text_field(std::string_view text) { return u8(static_cast<int>(text.size())) + characters(text); }

Bytes loop_field(Bytes const& bytes, int high_bits) {
  return u16(high_bits << 12 | static_cast<int>(bytes.size())) + bytes;
}

Bytes bcd(Time time) {
  return u8(bcd_byte(time.hour)) + u8(bcd_byte(time.minute)) + u8(bcd_byte(time.second));
}

Bytes time_field(Time time) { return u16(day_of_the_sample) + bcd(time); }

}  // namespace sample
