// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <span>
#include <string>
#include <vector>

#include "input/dvb_calls.h"
#include "input/file_descriptor.h"

namespace inspect {

/// The transport packets of one PID, as the kernel's demultiplexer gives them.
class DvbFilter {
 public:
  /// `device` is the path of a demultiplexer. Throws `NoInput`.
  DvbFilter(DvbCalls& calls, std::string const& device, int pid);

  /// Copies the next packet to `packet`; false where there is none yet. Throws `InputFault`.
  bool read(std::span<unsigned char> packet);
  int file() const { return file_.get(); }
  /// How often the kernel's buffer has run over.
  long long overflows() const { return overflows_; }

 private:
  void fill();

  DvbCalls& calls_;
  std::string device_;
  FileDescriptor file_;
  std::vector<unsigned char> bytes_;
  std::size_t next_ = 0, held_ = 0;  // of the bytes
  long long overflows_ = 0;
};

}  // namespace inspect
