// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <pybind11/pybind11.h>

#include <cstddef>
#include <vector>

#include "settings.h"
#include "stream_reader.h"

namespace sivane::python {

/// Sections as they came, copied behind each other: they can be taken without the interpreter's lock.
class SectionQueue final : public SectionSink {
 public:
  void take(SectionView const& section) override {
    views_.push_back(section);
    bytes_.insert(bytes_.end(), section.bytes, section.bytes + section.size);
  }

  bool is_empty() const { return next_ == views_.size(); }
  /// The next one, which is there, as a `sivane.Section`.
  pybind11::object give(SharedSettings const& settings);

 private:
  std::vector<SectionView> views_;  // their bytes are in `bytes_`
  std::vector<unsigned char> bytes_;
  std::size_t next_ = 0;
  std::size_t next_begins_ = 0;  // in `bytes_`
};

/// An iterator over what a queue has; each section is made when it is asked for, and can go before the next.
pybind11::object make_batch(SectionQueue queue, SharedSettings const& settings);

/// Makes the type of these iterators.
void add_batches();

}  // namespace sivane::python
