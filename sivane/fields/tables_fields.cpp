// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Tables and their entries.
#include <sivane/fields/field_list.h>
#include <sivane/tables/ait.h>
#include <sivane/tables/bat.h>
#include <sivane/tables/cat.h>
#include <sivane/tables/dsm_cc.h>
#include <sivane/tables/eit.h>
#include <sivane/tables/nit.h>
#include <sivane/tables/pat.h>
#include <sivane/tables/pmt.h>
#include <sivane/tables/rst.h>
#include <sivane/tables/sdt.h>
#include <sivane/tables/tdt.h>
#include <sivane/tables/tot.h>

namespace sivane {

// Pat: its entries have words of their own.

ENTRY_FIELDS(Pat::program_info) {
  f.add(FIELD_AS("sid", program_number), 16, "failed to get sid attribute");
  f.add(FIELD_AS("pmtpid", program_map_pid), 13, "failed to get pid node");
}

void Pat::_fields(FieldList& f) {
  f.entries(FIELD(program_infos), u"program_info", "failed to get attribute map");
}

// Cat

void Cat::_fields(FieldList& f) { f.descriptors(*this); }

// Pmt

STORED_ENTRY_FIELDS(PmtStreamInfo, PmtStreamInfo) {
  f.add(FIELD(stream_type), 8);
  f.add(FIELD(elementary_pid), 13);
  f.add(FIELD(es_info_length), 12);
  f.descriptors(*this);
}

void Pmt::_fields(FieldList& f) {
  f.add(FIELD_AS("pcr", pcr_pid), 13);
  f.entries(FIELD(stream_infos), u"stream");
  f.descriptors(*this);
}

// Nit and Bat

STORED_ENTRY_FIELDS(TransportStreamEntry, TransportStreamEntry) {
  f.add(FIELD(stream_id), 16);
  f.add(FIELD(network_id), 16);
  f.descriptors(*this);
}

void Nit::_fields(FieldList& f) {
  f.entries(FIELD(stream_infos), u"stream");
  f.descriptors(*this);
  f.list(UNSAVED(ca_descriptors), nullptr);
}

void Bat::_fields(FieldList& f) {
  f.entries(FIELD_AS("infos", stream_infos), u"stream_info");
  f.descriptors(*this);
  f.list(UNSAVED(ca_descriptors), nullptr);
}

// Sdt

STORED_ENTRY_FIELDS(Sdt::Service_info, Service_info) {
  f.add(FIELD(service_id), 16);
  f.add(FIELD(EIT_schedule_flag), 1);
  f.add(FIELD(EIT_present_following_flag), 1);
  f.add(FIELD(running_status), 3);
  f.add(FIELD(free_CA_mode), 1);
  f.descriptors(*this);
}

void Sdt::_fields(FieldList& f) {
  f.add(FIELD(original_network_id), 16);
  f.entries(FIELD(service_infos), u"service_info");
}

// Eit

STORED_ENTRY_FIELDS(Eit::EventInfo, EventInfo) {
  f.add(FIELD(event_id), 16);
  f.add(FIELD(running_status), 3);
  f.add(FIELD(free_CA_mode), 1);
  f.add(FIELD(descriptors_length), 12);
  f.add(FIELD(start_time));
  f.add(FIELD(duration));
  f.descriptors(*this);
}

void Eit::_fields(FieldList& f) {
  f.add(FIELD(transport_stream_id), 16);
  f.add(FIELD(original_network_id), 16);
  f.add(FIELD(segment_last_section_number), 8);
  f.add(FIELD(last_table_id), 8);
  f.entries(FIELD(event_infos), u"event");
}

// Ait

STORED_ENTRY_FIELDS(Ait::Application, Application) {
  f.add(FIELD(application_control_code), 8);
  f.add(FIELD(application_descriptors_loop_length), 12);
  f.add(FIELD(application_identifer));
  f.descriptors(*this);
}

void Ait::_fields(FieldList& f) {
  f.add(FIELD(common_descriptors_length), 12);
  f.add(FIELD(application_loop_length), 12);
  f.entries(FIELD(application_infos), u"application_info");
  f.descriptors(*this);
}

// Tdt, Tot and Rst

void Tdt::_fields(FieldList& f) { f.add(FIELD(UTC_time)); }

void Tot::_fields(FieldList& f) {
  f.add(FIELD(UTC_time));
  f.add(FIELD(crc32), 32, "failed to get crc32");
  f.descriptors(*this);
}

STORED_ENTRY_FIELDS(Rst::Status, Status) {
  f.add(FIELD(transport_stream_id), 16);
  f.add(FIELD(original_network_id), 16);
  f.add(FIELD(service_id), 16);
  f.add(FIELD(event_id), 16);
  f.add(FIELD(running_status), 3);
}

void Rst::_fields(FieldList& f) { f.entries(FIELD(status_infos), u"status_info"); }

// DsmCC

void DsmCC::_fields(FieldList& f) { f.add(UNSAVED(data)); }
bool DsmCC::_save_section(void*, void*) const { return false; }  // documents have no form for the payload

}  // namespace sivane
