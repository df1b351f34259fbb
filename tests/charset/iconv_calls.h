// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

namespace sivane::testing {

/// What the program has asked of iconv since the last time; the functions of the C library are replaced.
struct IconvCalls {
  int opened = 0;
  int converted = 0;
};
IconvCalls iconv_calls_since_last_time();

/// The next `count` attempts to open a converter fail as they do where the C library has no memory to look.
void refuse_to_open(int count);

}  // namespace sivane::testing
