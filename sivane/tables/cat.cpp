// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/parse_state.h>
#include <sivane/tables/cat.h>

namespace sivane {

void Cat::_parse(unsigned char const* body) {
  constexpr int ca_tag = 0x09;
  constexpr Failure invalid_size{error::no_errorcode, "invalid descriptor size"};
  constexpr Failure invalid_tag{error::no_errorcode, "invalid descriptor tag"};
  Reader reader = body_reader(body, invalid_size);
  int const end = reader.offset() + reader.left();
  auto const fits = [end](DescriptorBytes d) { return d.offset + 2 + d.length() <= end; };
  auto const file = [&](DescriptorBytes descriptor, unsigned int) {
    if (!fits(descriptor)) raise(invalid_size, descriptor.offset);
    if (descriptor.tag() != ca_tag) raise(invalid_tag, descriptor.offset);
    ParseDescriptor(descriptor);
  };
  auto const file_bytes = [&](DescriptorBytes descriptor, unsigned int specifier) {
    if (fits(descriptor)) file_as_bytes(descriptor, specifier);
  };
  file_descriptors(reader, reader.left(), invalid_size, LoopEnd::open, file, file_bytes);
}

void Cat::_reset() { clear_descriptors(); }

void Cat::_dump_state(std::ostream&) const {}

bool Cat::is_valid_syntax_indicator(int indicator) const { return indicator == 1; }

}  // namespace sivane
