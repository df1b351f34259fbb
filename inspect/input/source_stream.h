// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <array>
#include <istream>
#include <streambuf>

#include "input/source.h"

namespace inspect {

/// A source as a stream of text. An `InputFault` of the source leaves through the stream's operations.
class SourceStream final : public std::istream {
 public:
  explicit SourceStream(Source& source) : std::istream(nullptr), buffer_(source) {
    rdbuf(&buffer_);
    exceptions(std::ios::badbit);
  }

 private:
  class Buffer final : public std::streambuf {
   public:
    explicit Buffer(Source& source) : source_(source) {}

   private:
    int_type underflow() override {
      std::size_t const size = source_.read({reinterpret_cast<unsigned char*>(bytes_.data()), bytes_.size()});
      setg(bytes_.data(), bytes_.data(), bytes_.data() + size);
      return size == 0 ? traits_type::eof() : traits_type::to_int_type(bytes_[0]);
    }

    Source& source_;
    std::array<char, Source::smallest_buffer> bytes_;
  };

  Buffer buffer_;
};

}  // namespace inspect
