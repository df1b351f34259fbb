// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/mosiac.h>
#include <sivane/fields/field_list.h>

namespace sivane {

RECORD_FIELDS(DescriptorMosiac::BouquetInfo) { f.add(FIELD(bouquet_id), 16); }

RECORD_FIELDS(DescriptorMosiac::ServiceInfo) {
  f.add(FIELD(original_network_id), 16);
  f.add(FIELD(transport_stream_id), 16);
  f.add(FIELD(service_id), 16);
}

RECORD_FIELDS(DescriptorMosiac::EventInfo) {
  f.add(FIELD(original_network_id), 16);
  f.add(FIELD(transport_stream_id), 16);
  f.add(FIELD(service_id), 16);
  f.add(FIELD(event_id), 16);
}

RECORD_FIELDS(DescriptorMosiac::CellInfo) {
  f.add(FIELD(logical_cell_id), 6);
  f.add(FIELD(logical_call_presentation_info), 3);
  f.add(FIELD(elementary_cell_field_length), 8);
  f.add(FIELD(cell_linkage_info), 8);
  f.add(FIELD(elementary_cell_id));
  f.child(FIELD(bouquetinfo));
  f.child(FIELD(serviceinfo));
  f.child(FIELD(serviceinfo2));
  f.child(FIELD(eventinfo));
}

void DescriptorMosiac::_fields(FieldList& f) {
  f.add(FIELD(mosiac_entry_point), 1);
  f.add(FIELD(number_of_horizontal_elementary_cells), 3);
  f.add(FIELD(number_of_vertical_elementary_cells), 3);
  f.list(FIELD(cellinfo), u"info");
}

}  // namespace sivane
