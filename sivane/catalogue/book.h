// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: what the parts of a catalogue share.
#pragma once

#include <sivane/catalogue/budget.h>
#include <sivane/catalogue/change.h>
#include <sivane/catalogue/footprint.h>
#include <sivane/catalogue/versions.h>
#include <sivane/charset/charset.h>

#include <map>
#include <optional>
#include <utility>

namespace sivane::catalogue {

/// What the taking of a section works with.
struct Desk {
  Desk(std::size_t memory, charset::Options const& texts) : budget(memory), text(texts) {}

  Budget budget;
  charset::Converter text;
  Versions versions;
  Changes changes;  // by the section that is being taken
};

/// What a section names, and whether some of it was left out.
struct Taken {
  Names names;
  bool is_cut = false;

  void add(Name name, bool fits) {
    if (fits) names.push_back(name);
    is_cut = is_cut || !fits;
  }
};

/// A map whose entries are paid for, and whose changes are told.
template <class Key, class Value>
class Book {
 public:
  using Map = std::map<Key, Value>;

  Map const& all() const { return entries_; }
  Value const* find(Key const& key) const {
    auto const found = entries_.find(key);
    return found == entries_.end() ? nullptr : &found->second;
  }

  /// False where there is no room; what was there before stays.
  bool put(Key const& key, Value value, Desk& desk) {
    auto const known = entries_.find(key);
    bool const is_new = known == entries_.end();
    if (!is_new && known->second == value) return true;
    std::size_t const before = is_new ? 0 : entry_footprint<Key, Value>(known->second);
    if (!desk.budget.exchange(before, entry_footprint<Key, Value>(value))) return false;
    if (is_new) {
      entries_.emplace(key, std::move(value));
    } else {
      known->second = std::move(value);
    }
    desk.changes.push_back({is_new ? Change::Action::added : Change::Action::changed, key});
    return true;
  }

  void erase(Key const& key, Desk& desk) {
    auto const known = entries_.find(key);
    if (known == entries_.end()) return;
    desk.budget.free(entry_footprint<Key, Value>(known->second));
    entries_.erase(known);
    desk.changes.push_back({Change::Action::removed, key});
  }

 private:
  Map entries_;
};

}  // namespace sivane::catalogue
