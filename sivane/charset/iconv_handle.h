// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <iconv.h>

#include <memory>
#include <string>
#include <string_view>
#include <type_traits>

namespace sivane::charset {

/// A converter of iconv.
class IconvHandle {
 public:
  /// Throws `std::bad_alloc`; is not open where iconv does not know one of the encodings.
  IconvHandle(std::string const& to, std::string const& from);

  bool is_open() const { return handle_ != nullptr; }

  /// Appends what it makes of the text as far as it goes, and gives what is left: nothing, or what begins
  /// with a unit that is malformed, cut off or not in the other encoding. Each call begins anew.
  std::string_view convert(std::string_view text, std::string& converted);

 private:
  struct Close {
    void operator()(iconv_t handle) const { iconv_close(handle); }
  };
  using Handle = std::unique_ptr<std::remove_pointer_t<iconv_t>, Close>;

  static Handle try_open(std::string const& to, std::string const& from);
  static Handle open(std::string const& to, std::string const& from);
  void flush(std::string& converted);

  Handle handle_;  // null: not open
};

}  // namespace sivane::charset
