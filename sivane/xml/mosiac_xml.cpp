// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/mosiac.h>
#include <sivane/xml/archive.h>

namespace sivane {

using xml::Archive;

static void fields(Archive& ar, DescriptorMosiac::BouquetInfo& r) { ar.attr(u"bouquet_id", r.bouquet_id); }
SIVANE_XML_RECORD(DescriptorMosiac::BouquetInfo)

static void fields(Archive& ar, DescriptorMosiac::ServiceInfo& r) {
  ar.attr(u"original_network_id", r.original_network_id);
  ar.attr(u"transport_stream_id", r.transport_stream_id);
  ar.attr(u"service_id", r.service_id);
}
SIVANE_XML_RECORD(DescriptorMosiac::ServiceInfo)

static void fields(Archive& ar, DescriptorMosiac::EventInfo& r) {
  ar.attr(u"original_network_id", r.original_network_id);
  ar.attr(u"transport_stream_id", r.transport_stream_id);
  ar.attr(u"service_id", r.service_id);
  ar.attr(u"event_id", r.event_id);
}
SIVANE_XML_RECORD(DescriptorMosiac::EventInfo)

static void fields(Archive& ar, DescriptorMosiac::CellInfo& r) {
  ar.attr(u"logical_cell_id", r.logical_cell_id);
  ar.attr(u"logical_call_presentation_info", r.logical_call_presentation_info);
  ar.attr(u"elementary_cell_field_length", r.elementary_cell_field_length);
  ar.attr(u"cell_linkage_info", r.cell_linkage_info);
  ar.attr(u"elementary_cell_id", r.elementary_cell_id);
  ar.child(u"bouquetinfo", r.bouquetinfo);
  ar.child(u"serviceinfo", r.serviceinfo);
  ar.child(u"serviceinfo2", r.serviceinfo2);
  ar.child(u"eventinfo", r.eventinfo);
}
SIVANE_XML_RECORD(DescriptorMosiac::CellInfo)

static void fields(Archive& ar, DescriptorMosiac& d) {
  ar.attr(u"mosiac_entry_point", d.mosiac_entry_point);
  ar.attr(u"number_of_horizontal_elementary_cells", d.number_of_horizontal_elementary_cells);
  ar.attr(u"number_of_vertical_elementary_cells", d.number_of_vertical_elementary_cells);
  ar.list(u"cellinfo", u"info", d.cellinfo);
}
SIVANE_XML(DescriptorMosiac)

}  // namespace sivane
