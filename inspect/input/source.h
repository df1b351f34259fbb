// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>

#include "run_end.h"

namespace inspect {

/// The input cannot be opened, read or understood; `what()` is the line that says so.
struct InputFault : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// There is nothing to read at all: no such file, or no packet in it.
struct NoInput : InputFault {
  using InputFault::InputFault;
};

/// Where bytes come from.
class Source {
 public:
  virtual ~Source() = default;

  /// Fills the front of `buffer`, at least `smallest_buffer` bytes, with what is there, waiting for the first
  /// of it alone. 0 at the end of the input or of the run. Throws `InputFault`.
  virtual std::size_t read(std::span<unsigned char> buffer) = 0;
  /// Bytes that there are in all; -1 where nobody knows.
  virtual long long size() const { return -1; }
  /// Whether it gives bytes at the moment they are sent.
  virtual bool is_live() const { return false; }
  /// How lines call it.
  virtual std::string const& name() const = 0;
  /// Tells, after the last read, what was lost on the way here.
  virtual void report_losses() const {}

  static constexpr std::size_t smallest_buffer = 0x10000;
};

/// `name` as the user gave it: a file, "-", udp:// or rtp://. Throws `NoInput`.
std::unique_ptr<Source> open_source(std::string const& name, bool follow, RunEnd& end);

/// How lines call it: "standard input" for "-".
std::string shown_name(std::string const& name);

}  // namespace inspect
