// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <chrono>

#include "input/source.h"
#include "options.h"

namespace inspect {

/// How much of a file was read, on standard error where that is a terminal and the line does not get into the
/// way of sections that are shown on it as they come.
class Progress {
 public:
  Progress(Source const& source, Options const& options);
  void add(std::size_t bytes);

 private:
  std::string name_;
  long long size_;
  bool is_shown_;
  long long read_ = 0;
  std::chrono::steady_clock::time_point next_;
};

}  // namespace inspect
