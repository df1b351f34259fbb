// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/catalogue/state.h>
#include <sivane/catalogue/table_ids.h>
#include <sivane/catalogue/values.h>

namespace sivane::catalogue {

Taken Catalogue::State::take(Cat const& cat, bool starts_anew) {
  std::vector<ConditionalAccess> said = starts_anew ? std::vector<ConditionalAccess>() : access;
  for (ConditionalAccess const& one : access_of(cat.get_CA_descriptors())) said.push_back(one);
  make_unique(said);
  Taken taken;
  if (said == access) return taken;
  taken.is_cut = !desk.budget.exchange(footprint(access), footprint(said));
  if (taken.is_cut) return taken;
  desk.changes.push_back({access.empty() ? Change::Action::added : Change::Action::changed, AccessKey()});
  access = std::move(said);
  return taken;
}

Taken Catalogue::State::take(Nit const& nit, bool starts_anew) {
  about_.reset();
  return networks.take(nit, starts_anew, desk);
}

void Catalogue::State::drop(SubTableKey table, Names const& gone) {
  if (gone.empty()) return;
  int const table_id = table_id_of(table);
  if (is_eit(table_id)) return events.drop(table, gone, desk);
  if (is_sdt(table_id)) return services.drop(table, gone, desk);
  if (table_id == pat_id) return programs.drop(gone, desk);
  if (table_id == bat_id) return bouquets.drop(table, gone, desk);
  about_.reset();
  networks.drop(table, gone, desk);
}

Changes Catalogue::State::repeat(SectionId const& id) {
  drop(id.table, desk.versions.come_round(id, desk.budget));
  return told();
}

Changes Catalogue::State::add(Rst const& rst) {
  events.take(rst, desk);
  return told();
}

Changes Catalogue::State::add(Tot const& tot) {
  std::vector<LocalTimeOffset> told = local_times_of(tot);
  if (told != local_times && desk.budget.exchange(footprint(local_times), footprint(told))) {
    local_times = std::move(told);
  }
  return set_time(tot.UTC_time);
}

AboutStream const& Catalogue::State::about(StreamKey const& stream) {
  if (!about_ || about_->stream() != stream) about_.emplace(stream, networks);
  return *about_;
}

Changes Catalogue::State::set_time(DateTime const& utc) {
  if (auto const told_time = time_of(utc)) time = told_time;
  return {};
}

}  // namespace sivane::catalogue
