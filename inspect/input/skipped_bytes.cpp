// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/skipped_bytes.h"

#include "console.h"

namespace inspect {

namespace {

constexpr long long told_places = 20;

}  // namespace

void SkippedBytes::add(std::uint64_t offset, std::uint64_t size) {
  if (size_ > 0 && offset != offset_ + size_) tell();
  if (size_ == 0) offset_ = offset;
  size_ += size;
}

void SkippedBytes::tell() {
  if (size_ == 0) return;
  ++places_;
  sum_ += size_;
  if (places_ <= told_places) {
    report(counted(static_cast<long long>(size_), "byte") + " at " +
           grouped(static_cast<long long>(offset_)) + (size_ == 1 ? " is" : " are") +
           " no packet and left out");
  }
  size_ = 0;
}

void SkippedBytes::tell_sum() {
  tell();
  if (places_ > told_places) {
    report(counted(static_cast<long long>(sum_), "byte") + " in " + counted(places_, "place") +
           " are no packets and left out");
  }
}

}  // namespace inspect
