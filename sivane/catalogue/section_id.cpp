// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/catalogue/section_id.h>
#include <sivane/catalogue/table_ids.h>
#include <sivane/foundation/reader.h>
#include <sivane/foundation/section_size.h>
#include <sivane/tables/eit.h>
#include <sivane/tables/sdt.h>

namespace sivane::catalogue {

SectionId section_id(PsiTableBase const& table) {
  SectionId id;
  id.table = sub_table_key(table.table_id, table.context_id);
  id.version = table.version_number & 0x1F;
  id.number = table.section_number & 0xFF;
  id.last = table.last_section_number & 0xFF;
  id.crc = static_cast<std::uint32_t>(table.crc32);
  return id;
}

SectionId section_id(Sdt const& sdt) {
  SectionId id = section_id(static_cast<PsiTableBase const&>(sdt));
  id.table = sub_table_key(sdt.table_id, sdt.context_id, sdt.context_id, sdt.original_network_id);
  return id;
}

SectionId section_id(Eit const& eit) {
  SectionId id = section_id(static_cast<PsiTableBase const&>(eit));
  id.table = sub_table_key(eit.table_id, eit.context_id, eit.transport_stream_id, eit.original_network_id);
  if (is_schedule(eit.table_id)) id.last_in_segment = eit.segment_last_section_number & 0xFF;
  return id;
}

namespace {

/// The fields that an SDT and an EIT have behind the header.
void read_place(Reader& reader, int table_id, int extension, SectionId& id) {
  if (is_sdt(table_id)) id.table = sub_table_key(table_id, extension, extension, reader.u16());
  if (is_eit(table_id)) {
    int const transport_stream = reader.u16();
    id.table = sub_table_key(table_id, extension, transport_stream, reader.u16());
    int const last_in_segment = reader.u8();
    if (is_schedule(table_id)) id.last_in_segment = last_in_segment;
  }
}

}  // namespace

std::optional<SectionId> section_id(unsigned char const* section, std::size_t size) {
  constexpr std::size_t least = 3;
  constexpr int header_place_and_crc = 8 + 5 + 4;
  if (size < least) return std::nullopt;
  int const claimed = section_size(section);
  if (claimed < header_place_and_crc - 5 || static_cast<std::size_t>(claimed) > size) return std::nullopt;
  Reader reader = Reader::within(section, claimed);
  int const table_id = reader.u8();
  bool const is_long = reader.flag();
  reader.skip_bits(15);
  int const extension = reader.u16();
  SectionId id;
  id.table = sub_table_key(table_id, extension);
  reader.skip_bits(2);
  id.version = reader.bits(5);
  bool const is_current = reader.flag();
  if (!is_long || !is_current) return std::nullopt;
  id.number = reader.u8();
  id.last = reader.u8();
  if (claimed >= header_place_and_crc) read_place(reader, table_id, extension, id);
  id.crc = Reader::within(section + claimed - 4, 4).u32();
  return id;
}

}  // namespace sivane::catalogue
