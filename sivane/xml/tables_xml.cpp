// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Tables and their entries.
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
#include <sivane/xml/archive.h>

namespace sivane {

using xml::Archive;

/// The bodies by which a table without attributes of its own saves and loads itself.
#define SIVANE_XML_CHILDREN(Class)                                 \
  bool Class::_save_section(void* document, void* element) const { \
    return xml::save(*this, document, element);                    \
  }                                                                \
  void Class::_parse(void* node) { xml::load_children(*this, node); }

/// The bodies by which an entry saves and loads itself.
#define SIVANE_XML_ENTRY(Class, constructor)                           \
  bool Class::_save_stream_info(void* document, void* element) const { \
    return xml::save(*this, document, element);                        \
  }                                                                    \
  Class::constructor(void* node) { xml::load(*this, node); }

// Pat: its entries have words of their own, and are saved and loaded with the table.

static void fields(Archive& ar, Pat::program_info& e) {
  ar.attr(u"sid", e.program_number, "failed to get sid attribute");
  ar.attr(u"pmtpid", e.program_map_pid, "failed to get pid node");
}

static bool save_entry(Pat::program_info const& entry, void* document, void* element) {
  return xml::save(entry, document, element);
}

static void load_entry(std::vector<Pat::program_info>& entries, void* node) {
  Archive archive(node, "failed to get attribute map");
  Pat::program_info entry;
  fields(archive, entry);
  entries.push_back(entry);
}

static void fields(Archive& ar, Pat& t) { ar.entries(u"program_infos", u"program_info", t.program_infos); }
SIVANE_XML_CHILDREN(Pat)

// Cat

static void fields(Archive& ar, Cat& t) { ar.descriptors(t); }
SIVANE_XML_CHILDREN(Cat)

// Pmt

static void fields(Archive& ar, PmtStreamInfo& e) {
  ar.attr(u"stream_type", e.stream_type);
  ar.attr(u"elementary_pid", e.elementary_pid);
  ar.attr(u"es_info_length", e.es_info_length);
  ar.descriptors(e);
}
SIVANE_XML_ENTRY(PmtStreamInfo, PmtStreamInfo)

static void fields(Archive& ar, Pmt& t) {
  ar.attr(u"pcr", t.pcr_pid);
  ar.entries(u"stream_infos", u"stream", t.stream_infos);
  ar.descriptors(t);
}
SIVANE_XML(Pmt)

// Nit and Bat

static void fields(Archive& ar, TransportStreamEntry& e) {
  ar.attr(u"stream_id", e.stream_id);
  ar.attr(u"network_id", e.network_id);
  ar.descriptors(e);
}
SIVANE_XML_ENTRY(TransportStreamEntry, TransportStreamEntry)

static void fields(Archive& ar, Nit& t) {
  ar.entries(u"stream_infos", u"stream", t.stream_infos);
  ar.descriptors(t);
}
SIVANE_XML_CHILDREN(Nit)

static void fields(Archive& ar, Bat& t) {
  ar.entries(u"infos", u"stream_info", t.stream_infos);
  ar.descriptors(t);
}
SIVANE_XML_CHILDREN(Bat)

// Sdt

static void fields(Archive& ar, Sdt::Service_info& e) {
  ar.attr(u"service_id", e.service_id);
  ar.attr(u"EIT_schedule_flag", e.EIT_schedule_flag);
  ar.attr(u"EIT_present_following_flag", e.EIT_present_following_flag);
  ar.attr(u"running_status", e.running_status);
  ar.attr(u"free_CA_mode", e.free_CA_mode);
  ar.descriptors(e);
}
SIVANE_XML_ENTRY(Sdt::Service_info, Service_info)

static void fields(Archive& ar, Sdt& t) {
  ar.attr(u"original_network_id", t.original_network_id);
  ar.entries(u"service_infos", u"service_info", t.service_infos);
}
SIVANE_XML(Sdt)

// Eit

static void fields(Archive& ar, Eit::EventInfo& e) {
  ar.attr(u"event_id", e.event_id);
  ar.attr(u"running_status", e.running_status);
  ar.attr(u"free_CA_mode", e.free_CA_mode);
  ar.attr(u"descriptors_length", e.descriptors_length);
  ar.attr(u"start_time", e.start_time);
  ar.attr(u"duration", e.duration);
  ar.descriptors(e);
}
SIVANE_XML_ENTRY(Eit::EventInfo, EventInfo)

static void fields(Archive& ar, Eit& t) {
  ar.attr(u"transport_stream_id", t.transport_stream_id);
  ar.attr(u"original_network_id", t.original_network_id);
  ar.attr(u"segment_last_section_number", t.segment_last_section_number);
  ar.attr(u"last_table_id", t.last_table_id);
  ar.entries(u"event_infos", u"event", t.event_infos);
}
SIVANE_XML(Eit)

// Ait

static void fields(Archive& ar, Ait::Application& e) {
  ar.attr(u"application_control_code", e.application_control_code);
  ar.attr(u"application_descriptors_loop_length", e.application_descriptors_loop_length);
  ar.attr(u"application_identifer", e.application_identifer);
  ar.descriptors(e);
}
SIVANE_XML_ENTRY(Ait::Application, Application)

static void fields(Archive& ar, Ait& t) {
  ar.attr(u"common_descriptors_length", t.common_descriptors_length);
  ar.attr(u"application_loop_length", t.application_loop_length);
  ar.entries(u"application_infos", u"application_info", t.application_infos);
  ar.descriptors(t);
}
SIVANE_XML(Ait)

// Tdt, Tot and Rst

static void fields(Archive& ar, Tdt& t) { ar.attr(u"UTC_time", t.UTC_time); }
SIVANE_XML(Tdt)

static void fields(Archive& ar, Tot& t) {
  ar.attr(u"UTC_time", t.UTC_time);
  ar.attr(u"crc32", t.crc32, "failed to get crc32");
  ar.descriptors(t);
}
SIVANE_XML(Tot)

static void fields(Archive& ar, Rst::Status& e) {
  ar.attr(u"transport_stream_id", e.transport_stream_id);
  ar.attr(u"original_network_id", e.original_network_id);
  ar.attr(u"service_id", e.service_id);
  ar.attr(u"event_id", e.event_id);
  ar.attr(u"running_status", e.running_status);
}
SIVANE_XML_ENTRY(Rst::Status, Status)

static void fields(Archive& ar, Rst& t) { ar.entries(u"status_infos", u"status_info", t.status_infos); }
SIVANE_XML_CHILDREN(Rst)

// DsmCC: the payload has no form in documents.

bool DsmCC::_save_section(void*, void*) const { return false; }
void DsmCC::_parse(void*) {}

}  // namespace sivane
