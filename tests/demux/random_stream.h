// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Streams of one PID as they come off the air, and what is in them by a second reading of ISO/IEC
// 13818-1, 2.4.4.
#pragma once

#include <random>

#include "recording_host.h"

namespace sivane::testing {

/// Writes sections of random sizes into packets of random payloads, with each fault that reception knows.
class RandomStream {
 public:
  RandomStream(int pid, unsigned int seed) : pid_(pid), random_(seed) {}

  Bytes take(int packets) {
    while (packets-- > 0) faulty_packet();
    return std::move(stream_);
  }

 private:
  int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned int>(limit)); }

  Bytes next_section() {
    static constexpr int sizes[] = {3, 4, 8, 20, 50, 183, 184, 400, 4098};
    Bytes section{static_cast<unsigned char>(0x42 + 2 * below(3)), 0, 0};
    section.resize(static_cast<std::size_t>(sizes[below(80) == 0 ? 8 : below(8)]));
    for (std::size_t i = 3; i < section.size(); ++i) section[i] = static_cast<unsigned char>(random_());
    section[1] = static_cast<unsigned char>(0xF0 | (section.size() - 3) >> 8);
    section[2] = static_cast<unsigned char>((section.size() - 3) & 0xFF);
    return section;
  }

  Bytes packet() {
    std::size_t const room = below(3) > 0 ? 184 : static_cast<std::size_t>(2 + below(182));
    bool const starts = open_.size() + 2 <= room;
    Bytes payload = starts ? Bytes{static_cast<unsigned char>(open_.size())} : Bytes();
    payload = std::move(payload) + open_;
    while (starts && payload.size() < room && below(5) > 0) payload = std::move(payload) + next_section();
    std::size_t const size = std::min(room, payload.size());
    open_.assign(payload.begin() + static_cast<std::ptrdiff_t>(size), payload.end());
    payload.resize(room, 0xFF);
    Bytes result = exact_packet(pid_, starts, payload);
    result[3] = static_cast<unsigned char>(result[3] | (counter_++ & 0xF));
    if (room < 170 && below(2) == 0) result[5] |= 0x10;  // a PCR
    return result;
  }

  void faulty_packet() {
    Bytes result = packet();
    bool const has_field = (result[3] & 0x20) != 0 && result[4] > 0;
    Bytes const without_payload = exact_packet(pid_, false, {});
    switch (below(50)) {
      case 0:
        return;  // lost
      case 1:
        stream_ = std::move(stream_) + result;
        if ((result[5] & 0x10) != 0 && has_field) result[7] ^= 0x55;
        break;
      case 2:
        result[1] |= 0x80;
        break;
      case 3:
        result[3] |= 0x80;
        break;
      case 4:
        if (!has_field) break;
        counter_ += 5;
        result[3] = static_cast<unsigned char>((result[3] & 0xF0) | (counter_++ & 0xF));
        result[5] |= 0x80;
        break;
      case 5:
        result[static_cast<std::size_t>(4 + below(184))] ^= static_cast<unsigned char>(1 << below(8));
        break;
      case 6:
        result[3] &= 0xCF;  // a reserved adaptation_field_control
        break;
      case 7:
        stream_ =
            std::move(stream_) + part(without_payload, 0, 3) + Bytes{0x20} + part(without_payload, 4, 188);
        break;
      default:
        break;
    }
    stream_ = std::move(stream_) + result;
  }

  int pid_;
  std::minstd_rand random_;
  int counter_ = 0;
  Bytes open_;  // what is left of the section in progress
  Bytes stream_;
};

/// All sections of a PID.
class SecondReading {
 public:
  Sections sections;

  void packet(Bytes const& p) {
    bool const has_payload = (p[3] & 0x10) != 0, has_field = (p[3] & 0x20) != 0;
    bool const announced = has_field && p[4] > 0 && (p[5] & 0x80) != 0;
    int const counter = p[3] & 0xF, expected = (counter_ + 1) % 16;
    if ((p[1] & 0x80) != 0) return;
    if (!has_payload && announced) counter_ = counter;
    if (!has_payload || (counter == counter_ && without_pcr(p) == last_)) return;
    bool const is_clear = (p[3] & 0xC0) == 0;
    if (!is_clear || (counter_ >= 0 && counter != expected && !announced)) open_.clear();
    counter_ = counter;
    last_ = without_pcr(p);
    int const at = has_field ? std::min(5 + p[4], 188) : 4;
    if (is_clear && at < 188) payload((p[1] & 0x40) != 0, part(p, at, 188));
  }

 private:
  static Bytes without_pcr(Bytes p) {
    bool const has_pcr = (p[3] & 0x20) != 0 && p[4] >= 7 && (p[5] & 0x10) != 0;
    if (has_pcr) std::fill(p.begin() + 6, p.begin() + 12, 0);
    return p;
  }
  void payload(bool starts, Bytes const& bytes) {
    auto const pointer = starts ? bytes[0] + 1u : bytes.size();
    if (pointer > bytes.size()) return open_.clear();
    if (!open_.empty()) open_ = std::move(open_) + part(bytes, starts ? 1 : 0, static_cast<int>(pointer));
    if (takes_one()) open_.clear();
    if (!starts) return;
    open_ = part(bytes, static_cast<int>(pointer), static_cast<int>(bytes.size()));
    while (!open_.empty() && open_[0] != 0xFF && takes_one()) continue;
    if (!open_.empty() && open_[0] == 0xFF) open_.clear();
  }
  bool takes_one() {
    int const size = open_.size() < 3 ? 4099 : section_size(open_.data());
    if (size > static_cast<int>(open_.size())) return false;
    sections.push_back(part(open_, 0, size));
    open_.erase(open_.begin(), open_.begin() + size);
    return true;
  }

  int counter_ = -1;
  Bytes last_, open_;
};

}  // namespace sivane::testing
