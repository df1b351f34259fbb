// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "input/section.h"

namespace inspect {

/// The sections of a stream, each once, as far as there is room.
class SectionStore {
 public:
  static constexpr std::size_t most_sections = 4000;
  static constexpr std::size_t most_bytes = 1'000'000;

  struct Entry {
    int pid = 0;
    long long offset = 0;  ///< of the packet in which it began first
    std::uint64_t count = 0;
    std::vector<unsigned char> bytes;
  };

  void take(Section const& section);

  std::vector<Entry> const& entries() const { return entries_; }  ///< in the order of the stream
  std::uint64_t left_out() const { return left_out_; }  ///< for which there was no room, repetitions counted

 private:
  std::vector<Entry> entries_;
  std::unordered_map<std::string, std::size_t> places_;  // by PID and bytes
  std::size_t bytes_ = 0;
  std::uint64_t left_out_ = 0;
};

}  // namespace inspect
