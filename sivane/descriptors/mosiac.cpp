// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/mosiac.h>
#include <sivane/foundation/dump_lines.h>

#include <ostream>

namespace sivane {

using dump::line;

DescriptorMosiac::DescriptorMosiac(DescriptorBytes d) : DescriptorBase(d) {
  Reader r = d.body({error::length_error, "mosiac_descriptor"});
  mosiac_entry_point = r.bits(1);
  number_of_horizontal_elementary_cells = r.bits(3);
  r.skip_bits(1);
  number_of_vertical_elementary_cells = r.bits(3);
  cellinfo = r.walk<CellInfo>();
}

DescriptorMosiac::CellInfo::CellInfo(unsigned char const* p, int /*size*/, int& consumed)
    : CellInfo(read_record<CellInfo>(Reader::trusting(p), consumed)) {}

DescriptorMosiac::CellInfo::CellInfo(Reader& r) {
  logical_cell_id = r.bits(6);
  r.skip_bits(7);
  logical_call_presentation_info = r.bits(3);
  elementary_cell_field_length = r.u8();
  elementary_cell_id = r.bytes(elementary_cell_field_length);
  for (unsigned char& id : elementary_cell_id) id &= 0x3F;
  cell_linkage_info = r.u8();
  switch (cell_linkage_info) {
    case 1:
      bouquetinfo = BouquetInfo(r);
      break;
    case 2:
      serviceinfo = ServiceInfo(r);
      break;
    case 3:
      serviceinfo2 = ServiceInfo2(r);
      break;
    case 4:
      eventinfo = EventInfo(r);
      break;
    default:
      r.fail({error::syntax_error}, -1);
  }
}

DescriptorMosiac::BouquetInfo::BouquetInfo(Reader& r) : bouquet_id(r.u16()) {}

DescriptorMosiac::ServiceInfo::ServiceInfo(Reader& r) {
  original_network_id = r.u16();
  transport_stream_id = r.u16();
  service_id = r.u16();
}

DescriptorMosiac::EventInfo::EventInfo(Reader& r) {
  original_network_id = r.u16();
  transport_stream_id = r.u16();
  service_id = r.u16();
  event_id = r.u16();
}

void DescriptorMosiac::_dump_state(std::ostream& os) const {
  line(os, "mosiac_entry_point: ", mosiac_entry_point);
  line(os, "number_of_horizontal_elementary_cells: ", number_of_horizontal_elementary_cells);
  line(os, "number_of_vertical_elementary_cells: ", number_of_vertical_elementary_cells);
  for (CellInfo const& cell : cellinfo) cell._dump_state(os);
}

void DescriptorMosiac::CellInfo::_dump_state(std::ostream& os) const {
  line(os, "DescriptorMosiac::CellInfo::logical_cell_id: ", logical_cell_id);
  line(os, "DescriptorMosiac::CellInfo::logical_call_presentation_info: ", logical_call_presentation_info);
  line(os, "DescriptorMosiac::CellInfo::elementary_cell_field_length: ", elementary_cell_field_length);
  line(os, "DescriptorMosiac::CellInfo::cell_linkage_info: ", cell_linkage_info);
  switch (cell_linkage_info) {
    case 1:
      bouquetinfo._dump_state(os);
      break;
    case 2:
      serviceinfo._dump_state(os);
      break;
    case 3:
      serviceinfo2._dump_state(os);
      break;
    case 4:
      eventinfo._dump_state(os);
      break;
    default:
      break;
  }
}

void DescriptorMosiac::BouquetInfo::_dump_state(std::ostream& os) const {
  line(os, "BouquetInfo::bouquet_id: ", bouquet_id);
}

void DescriptorMosiac::ServiceInfo::_dump_state(std::ostream& os) const {
  line(os, "ServiceInfo::original_network_id: ", original_network_id);
  line(os, "ServiceInfo::transport_stream_id: ", transport_stream_id);
  line(os, "ServiceInfo::service_id: ", service_id);
}

void DescriptorMosiac::EventInfo::_dump_state(std::ostream& os) const {
  line(os, "EventInfo::original_network_id: ", original_network_id);
  line(os, "EventInfo::transport_stream_id: ", transport_stream_id);
  line(os, "EventInfo::service_id: ", service_id);
  line(os, "EventInfo::event_id: ", event_id);
}

}  // namespace sivane
