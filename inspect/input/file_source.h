// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include "input/file_descriptor.h"
#include "input/source.h"

namespace inspect {

/// A file, a named pipe or standard input.
class FileSource final : public Source {
 public:
  /// With `follow` the end of the file is where more is waited for.
  FileSource(std::string const& name, bool follow, RunEnd& end);

  std::size_t read(std::span<unsigned char> buffer) override;
  std::string const& name() const override { return name_; }
  long long size() const override { return size_; }

 private:
  std::string name_;
  bool follow_;
  RunEnd& end_;
  FileDescriptor file_;
  long long size_ = -1;
};

}  // namespace inspect
