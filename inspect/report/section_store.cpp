// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "report/section_store.h"

namespace inspect {

void SectionStore::take(Section const& section) {
  std::string key(section.bytes.begin(), section.bytes.end());
  key += static_cast<char>(section.pid >> 8);
  key += static_cast<char>(section.pid);
  auto const known = places_.find(key);
  if (known != places_.end()) {
    ++entries_[known->second].count;
    return;
  }
  if (entries_.size() >= most_sections || bytes_ + section.bytes.size() > most_bytes) {
    ++left_out_;
    return;
  }
  bytes_ += section.bytes.size();
  places_.emplace(std::move(key), entries_.size());
  entries_.push_back({section.pid, section.offset, 1, {section.bytes.begin(), section.bytes.end()}});
}

}  // namespace inspect
