// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/tables/entry.h>
#include <sivane/tables/section.h>
#include <sivane/tables/transport_stream_entry.h>

namespace sivane {

namespace {

constexpr int entry_head_size = 6;

}  // namespace

TransportStreamEntry::TransportStreamEntry(unsigned char const* data, int& size) {
  Reader reader = Reader::within(data, size, start_end_mismatch);
  *this = TransportStreamEntry(reader, size);
  size = reader.consumed();
}

TransportStreamEntry::TransportStreamEntry(Reader& reader, int available) {
  if (available < entry_head_size) reader.fail(too_little_data);
  stream_id = reader.u16();
  network_id = reader.u16();
  int const transport_descriptors_length = length_field(reader);
  parse_descriptors(reader, transport_descriptors_length, start_end_mismatch);
}

}  // namespace sivane
