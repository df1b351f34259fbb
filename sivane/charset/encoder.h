// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>

#include <memory>
#include <string>
#include <string_view>

namespace sivane::charset {

class IconvHandle;

/// Turns UTF-8 into another encoding, for a terminal or a database that is not of UTF-8. Use it from one
/// thread at a time; one that was moved from can be destroyed or assigned to.
class SIVANE_API Encoder {
 public:
  /// `name` as iconv knows it. Throws `std::invalid_argument` where it does not, and `std::bad_alloc`.
  explicit Encoder(std::string const& name);
  ~Encoder();
  /// Takes what is open.
  Encoder(Encoder&& other) noexcept;
  /// The same.
  Encoder& operator=(Encoder&& other) noexcept;

  /// "?" stands for a character that the encoding does not have, and for a byte that is no UTF-8.
  std::string encode(std::string_view utf8);

 private:
  std::unique_ptr<IconvHandle> iconv_;
};

}  // namespace sivane::charset
