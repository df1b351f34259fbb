// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <pybind11/pybind11.h>

#include <cstddef>
#include <span>
#include <vector>

namespace sivane::python {

/// The bytes of an object that has some, for use without the interpreter's lock. What other threads may write
/// to meanwhile is copied.
class Buffer {
 public:
  /// Throws TypeError or BufferError for what has no bytes behind each other.
  explicit Buffer(pybind11::handle object) {
    if (PyObject_GetBuffer(object.ptr(), &view_, PyBUF_SIMPLE) != 0) throw pybind11::error_already_set();
    auto const* const first = static_cast<unsigned char const*>(view_.buf);
    bytes_ = {first, static_cast<std::size_t>(view_.len)};
    if (view_.readonly != 0) return;
    copy_.assign(first, first + view_.len);
    bytes_ = copy_;
  }
  Buffer(Buffer const&) = delete;
  Buffer& operator=(Buffer const&) = delete;
  ~Buffer() { PyBuffer_Release(&view_); }

  std::span<unsigned char const> bytes() const { return bytes_; }

 private:
  Py_buffer view_ = {};
  std::vector<unsigned char> copy_;
  std::span<unsigned char const> bytes_;
};

}  // namespace sivane::python
