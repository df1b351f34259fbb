// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/catalogue/footprint.h>
#include <sivane/catalogue/versions.h>

#include <algorithm>
#include <iterator>

namespace sivane::catalogue {

namespace {

Names without(Names const& from, Names const& names) {
  Names left;
  std::set_difference(from.begin(), from.end(), names.begin(), names.end(), std::back_inserter(left));
  return left;
}

Names united(Names const& left, Names const& right) {
  Names both;
  std::set_union(left.begin(), left.end(), right.begin(), right.end(), std::back_inserter(both));
  both.shrink_to_fit();
  return both;
}

std::size_t index(int number) { return static_cast<std::size_t>(number); }

}  // namespace

bool SubTable::repeats(SectionId const& id) const {
  std::size_t const number = index(id.number);
  return id.version == version_ && received_[number] && !again_[number] && crcs_[number] == id.crc;
}

bool SubTable::starts_anew(SectionId const& id) const {
  std::size_t const number = index(id.number);
  return id.version != version_ || (received_[number] && crcs_[number] != id.crc);
}

void SubTable::begin(SectionId const& id) {
  version_ = id.version;
  first_number_ = id.number;
  rounds_ = 0;
  is_whole_ = false;
  received_.reset();
  again_.reset();
  stale_ = names_;
}

void SubTable::note(SectionId const& id, bool again) {
  std::size_t const number = index(id.number);
  received_.set(number);
  again_.set(number, again);
  crcs_[number] = id.crc;
  last_ = std::max(id.last, id.number);
  has_segments_ = id.last_in_segment >= 0;
  if (!has_segments_) return;
  int const first = id.number - id.number % sections_in_segment;
  int const last = std::clamp(id.last_in_segment, id.number, first + sections_in_segment - 1);
  last_in_segment_[index(first / sections_in_segment)] = static_cast<std::uint8_t>(last);
}

std::size_t SubTable::growth(SectionId const& id) const {
  std::size_t const wanted = index(std::max(id.number, id.last)) + 1;
  return wanted <= crcs_.size() ? 0 : allocation(wanted * sizeof crcs_[0]) - catalogue::footprint(crcs_);
}

void SubTable::make_room(SectionId const& id) {
  std::size_t const wanted = index(std::max(id.number, id.last)) + 1;
  if (wanted <= crcs_.size()) return;
  crcs_.reserve(wanted);
  crcs_.resize(wanted);
}

bool SubTable::has_all(int first, int last) const {
  for (int number = first; number <= last; ++number) {
    if (!received_[index(number)]) return false;
  }
  return true;
}

bool SubTable::is_whole() const {
  if (!has_segments_) return has_all(0, last_);
  for (int first = 0; first <= last_; first += sections_in_segment) {
    int const segment = first / sections_in_segment;
    if (!received_[index(first)] || !has_all(first, last_in_segment_[index(segment)])) return false;
  }
  return true;
}

Names SubTable::finish() {
  is_whole_ = true;
  Names gone = std::exchange(stale_, {});
  if (!gone.empty()) names_ = without(names_, gone);
  return gone;
}

Names SubTable::take(SectionId const& id, Names const& names, bool again) {
  if (starts_anew(id)) begin(id);
  note(id, again);
  names_ = united(names_, names);
  if (!stale_.empty()) stale_ = without(stale_, names);
  return !is_whole_ && is_whole() ? finish() : Names();
}

Names SubTable::come_round(SectionId const& id) {
  constexpr int enough = 2;  // repetitions, in which all that is sent came once
  if (is_whole_ || id.number != first_number_ || ++rounds_ < enough) return {};
  return finish();
}

bool SubTable::has(Name name) const { return std::binary_search(names_.begin(), names_.end(), name); }

std::size_t SubTable::footprint() const {
  return catalogue::footprint(crcs_) + catalogue::footprint(names_) + catalogue::footprint(stale_);
}

bool Versions::repeats(SectionId const& id) const {
  auto const found = tables_.find(id.table);
  return found != tables_.end() && found->second.repeats(id);
}

bool Versions::starts_anew(SectionId const& id) const {
  auto const found = tables_.find(id.table);
  return found == tables_.end() || found->second.starts_anew(id);
}

bool Versions::prepare(SectionId const& id, Budget& budget) {
  auto const known = tables_.find(id.table);
  bool const is_new = known == tables_.end();
  std::size_t const growth =
      (is_new ? new_footprint() : 0) + (is_new ? SubTable() : known->second).growth(id);
  if (growth > 0 && !budget.exchange(0, growth)) return false;
  tables_[id.table].make_room(id);
  return true;
}

Names Versions::take(SectionId const& id, Names names, bool again, Budget& budget) {
  std::sort(names.begin(), names.end());
  names.erase(std::unique(names.begin(), names.end()), names.end());
  return change(id, budget, [&](SubTable& table) { return table.take(id, names, again); });
}

Names Versions::come_round(SectionId const& id, Budget& budget) {
  return change(id, budget, [&](SubTable& table) { return table.come_round(id); });
}

template <class Operation>
Names Versions::change(SectionId const& id, Budget& budget, Operation operation) {
  SubTable& table = tables_[id.table];
  std::size_t const before = table.footprint();
  Names gone = operation(table);
  budget.charge(before, table.footprint());
  return gone;
}

bool Versions::has(SubTableKey table, Name name) const {
  auto const found = tables_.find(table);
  return found != tables_.end() && found->second.has(name);
}

void Versions::forget(SubTableKey table, Budget& budget) {
  auto const found = tables_.find(table);
  if (found == tables_.end()) return;
  budget.free(new_footprint() + found->second.footprint());
  tables_.erase(found);
}

std::size_t Versions::new_footprint() {
  constexpr std::size_t link_and_bucket = 2 * sizeof(void*);
  return allocation(sizeof(std::pair<SubTableKey const, SubTable>) + link_and_bucket) + sizeof(void*);
}

}  // namespace sivane::catalogue
