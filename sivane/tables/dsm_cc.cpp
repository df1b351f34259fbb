// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/tables/dsm_cc.h>

namespace sivane {

void DsmCC::_parse(unsigned char const* body) {
  constexpr int length_without_payload = 9;
  constexpr int bytes_before_length_counts = 3;
  if (section_length < length_without_payload) {
    raise(too_little_data, section_length + bytes_before_length_counts);
  }
  data = body_reader(body).rest();
}

void DsmCC::_reset() {}

void DsmCC::_dump_state(std::ostream&) const {}

}  // namespace sivane
