// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/catalogue/service_book.h>
#include <sivane/catalogue/table_ids.h>
#include <sivane/catalogue/values.h>

namespace sivane::catalogue {

namespace {

void read_names(Sdt::Service_info const& info, charset::Converter& text, Service& service) {
  for (auto const& descriptor : info.get_service_descriptors()) {
    service.type = descriptor.service_type;
    service.name = text.utf8(descriptor.service_name);
    service.provider = text.utf8(descriptor.provider_name);
  }
  for (auto const& descriptor : info.get_multilingual_service_name_descriptors()) {
    for (auto const& name : descriptor.servicenameinfo) {
      service.names.push_back(
          {code_text(name.ISO_639_language_code), text.utf8(name.servicename), text.utf8(name.providername)});
    }
  }
}

Service service_of(Sdt::Service_info const& info, bool is_actual, charset::Converter& text) {
  Service service;
  read_names(info, text, service);
  service.running_status = info.running_status;
  service.is_scrambled = info.free_CA_mode != 0;
  service.has_schedule = info.EIT_schedule_flag != 0;
  service.has_present_following = info.EIT_present_following_flag != 0;
  service.is_actual = is_actual;
  service.default_authority = default_authority_of(info);
  service.ca_systems = ca_systems_of(info);
  return service;
}

}  // namespace

Taken ServiceBook::take(Sdt const& sdt, Desk& desk) {
  Taken taken;
  for (Sdt::Service_info const& info : sdt.service_infos) {
    ServiceKey const key = {sdt.original_network_id, sdt.context_id, info.service_id};
    Service service = service_of(info, sdt.table_id == actual_sdt_id, desk.text);
    taken.add(static_cast<Name>(info.service_id), services_.put(key, std::move(service), desk));
  }
  return taken;
}

void ServiceBook::drop(SubTableKey table, Names const& gone, Desk& desk) {
  int const other = table_id_of(table) == actual_sdt_id ? other_sdt_id : actual_sdt_id;
  for (Name const service : gone) {
    if (desk.versions.has(with_table_id(table, other), service)) continue;
    auto const part = [table](int bits) { return static_cast<int>(table >> bits & 0xFFFF); };
    services_.erase({part(0), part(16), static_cast<int>(service)}, desk);
  }
}

}  // namespace sivane::catalogue
