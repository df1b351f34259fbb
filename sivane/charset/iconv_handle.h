// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <iconv.h>

#include <string>
#include <string_view>

namespace sivane::charset {

/// An open converter of iconv.
class IconvHandle {
 public:
  /// Throws `std::bad_alloc`; is not open where iconv does not know one of the encodings.
  IconvHandle(std::string const& to, std::string const& from);
  IconvHandle(IconvHandle&& other) noexcept;
  IconvHandle& operator=(IconvHandle&& other) noexcept;
  ~IconvHandle();

  bool is_open() const;

  /// Appends what it makes of the text as far as it goes, and gives what is left: nothing, or what begins
  /// with a unit that is malformed, cut off or not in the other encoding. Each call begins anew.
  std::string_view convert(std::string_view text, std::string& converted);

 private:
  void flush(std::string& converted);

  iconv_t handle_;
};

}  // namespace sivane::charset
