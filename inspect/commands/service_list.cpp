// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "commands/service_list.h"

namespace inspect {

namespace {

constexpr int actual_stream = 0x42;

Service service_of(sivane::Sdt::Service_info const& info, sivane::charset::Converter& texts) {
  Service service;
  service.running_status = info.running_status;
  service.is_scrambled = info.free_CA_mode != 0;
  for (auto const& descriptor : info.get_service_descriptors()) {
    service.type = descriptor.service_type;
    service.name = texts.utf8(descriptor.service_name);
    service.provider = texts.utf8(descriptor.provider_name);
  }
  for (auto const& descriptor : info.get_CA_identifiers_descriptors()) {
    for (auto const& system : descriptor.CA_system_id) service.ca_systems.insert(system.CA_system_id);
  }
  return service;
}

std::set<int> ca_systems_of(sivane::Pmt const& pmt) {
  std::vector<sivane::DescriptorCa> descriptors;
  pmt.get_all_ca_descriptors(descriptors);
  std::set<int> systems;
  for (auto const& descriptor : descriptors) systems.insert(descriptor.sys_id);
  return systems;
}

}  // namespace

void ServiceList::take(Table const& table, sivane::charset::Converter& texts) {
  if (auto const* const sdt = current_as<sivane::Sdt>(table)) take(*sdt, texts);
  if (auto const* const pmt = current_as<sivane::Pmt>(table))
    programs_[pmt->context_id] = inspect::ca_systems_of(*pmt);
}

void ServiceList::take(sivane::Sdt const& sdt, sivane::charset::Converter& texts) {
  if (sdt.table_id == actual_stream) own_streams_.insert(sdt.context_id);
  for (auto const& info : sdt.service_infos) {
    services_[{sdt.original_network_id, sdt.context_id, info.service_id}] = service_of(info, texts);
  }
}

std::set<int> ServiceList::ca_systems_of(ServiceId const& id) const {
  auto const service = services_.find(id);
  std::set<int> systems = service == services_.end() ? std::set<int>() : service->second.ca_systems;
  auto const program = programs_.find(id.service);
  if (program != programs_.end() && own_streams_.contains(id.transport_stream)) {
    systems.insert(program->second.begin(), program->second.end());
  }
  return systems;
}

std::string ServiceList::name_of(ServiceId const& id) const {
  auto const service = services_.find(id);
  return service == services_.end() ? std::string() : service->second.name;
}

}  // namespace inspect
