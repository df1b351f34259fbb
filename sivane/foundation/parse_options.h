// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/error.h>

#include <bitset>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <vector>

namespace sivane {

/// What a tolerant `Parse` did not throw: what an `error` would have said.
struct ParseProblem {
  int offset = -1;  ///< as `error::offset`
  int tag = -1;     ///< of the descriptor that failed, 8 bits; -1 where a loop, an entry or the body did
  error::errorcode_enum code = error::no_errorcode;  ///< as of the `error`
  std::string text;                                  ///< empty for the codes that have none
};

/// What a `Parse` is asked for beside the section, and what it tells beside the table. A further `Parse` adds
/// to the problems and the count.
struct ParseOptions {
  /// The first problem is listed and not thrown, as are those that follow. A descriptor that fails is filed
  /// with its bytes, in `get_general_descriptors` or, from tag 0x80 on, in `get_user_private_descriptors`,
  /// and its loop goes on at its length. A loop that does not end where it should keeps what it has; what
  /// comes next begins where the loop's length says, if that is within the section. CRC, header bits and
  /// table id are thrown all the same.
  bool tolerant = true;
  /// The tags to build; descriptors of the others are stepped over by their length. In an AIT they are those
  /// of its own space.
  std::bitset<256> tags = std::bitset<256>().set();

  std::vector<ParseProblem> problems;  ///< in section order
  std::size_t skipped = 0;             ///< descriptors stepped over for their tag

  /// Sets `tags` to these, each 0 to 255.
  void build_only(std::initializer_list<int> wanted) {
    tags.reset();
    for (int const tag : wanted) tags.set(static_cast<std::size_t>(tag));
  }
};

}  // namespace sivane
