// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/error.h>
#include <sivane/foundation/export.h>

namespace sivane {

/// What is thrown when bytes run out: a code alone, a text alone (`no_errorcode`) or both.
struct Failure {
  error::errorcode_enum code = error::no_errorcode;  ///< `no_errorcode` for a text alone
  char const* text = nullptr;                        ///< a literal, or null for a code alone
};
/// Throws it as an `error`; `offset` is where in the section.
[[noreturn]] SIVANE_API void raise(Failure failure, int offset = -1);

/// Thrown where no rule names another failure.
inline constexpr Failure too_little_data{error::no_errorcode, "too little data"};

}  // namespace sivane
