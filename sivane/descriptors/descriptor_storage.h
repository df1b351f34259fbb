// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: how descriptor sets store, find and visit what they hold, and the table of a set's rows.
#pragma once

#include <sivane/descriptors/descriptor.h>
#include <sivane/descriptors/descriptor_groups.h>

#include <array>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace sivane {

class AitDescriptorSet;
class DescriptorSet;

struct DescriptorGroups::Group {
  Group(int number, std::unique_ptr<Group> behind) : row(number), next(std::move(behind)) {}
  virtual ~Group() = default;
  virtual std::unique_ptr<Group> copy() const = 0;  // without those behind
  virtual std::size_t size() const = 0;
  virtual DescriptorBase const& at(std::size_t index) const = 0;

  int row;
  std::unique_ptr<Group> next;
};

struct DescriptorStorage {
  using Group = DescriptorGroups::Group;
  using Link = std::unique_ptr<Group>;

  template <class Descriptor>
  struct GroupOf final : Group {
    GroupOf(int number, Link behind, std::vector<Descriptor> held = {})
        : Group(number, std::move(behind)), items(std::move(held)) {}
    Link copy() const override { return std::make_unique<GroupOf>(row, nullptr, items); }
    std::size_t size() const override { return items.size(); }
    DescriptorBase const& at(std::size_t index) const override { return items[index]; }

    std::vector<Descriptor> items;
  };

  template <class Descriptor>
  static void append(DescriptorGroups& groups, int row, Descriptor&& descriptor) {
    Link& at = place(groups, row);
    if (!at || at->row != row) at = std::make_unique<GroupOf<Descriptor>>(row, std::move(at));
    static_cast<GroupOf<Descriptor>&>(*at).items.push_back(std::forward<Descriptor>(descriptor));
  }

  template <class Descriptor>
  static std::vector<Descriptor> const& items(DescriptorGroups const& groups, int row) {
    static std::vector<Descriptor> const none;
    Group const* group = groups.first_.get();
    while (group != nullptr && group->row < row) group = group->next.get();
    if (group == nullptr || group->row != row) return none;
    return static_cast<GroupOf<Descriptor> const&>(*group).items;
  }

  static void erase(DescriptorGroups& groups, int row) {
    Link& at = place(groups, row);
    if (at && at->row == row) at = std::move(at->next);
  }

  /// Calls `visit(row, descriptor)` for each, row by row.
  template <class Visit>
  static void each(DescriptorGroups const& groups, Visit visit) {
    for (Group const* group = groups.first_.get(); group != nullptr; group = group->next.get()) {
      for (std::size_t i = 0; i < group->size(); ++i) visit(group->row, group->at(i));
    }
  }

  static Link copy(DescriptorGroups const& groups) {
    Link copied;
    Link* end = &copied;
    for (Group const* group = groups.first_.get(); group != nullptr; group = group->next.get()) {
      *end = group->copy();
      end = &(*end)->next;
    }
    return copied;
  }

 private:
  /// Where the group of `row` is linked, or would be.
  static Link& place(DescriptorGroups& groups, int row) {
    Link* at = &groups.first_;
    while (*at && (*at)->row < row) at = &(*at)->next;
    return *at;
  }
};

/// A row of a set: which tag is filed there, and how a descriptor comes there from bytes and from its
/// element.
struct DescriptorRow {
  enum Kind : int { user_private = -1, other = -2 };  // in place of a tag, for those that have no class

  int tag;
  void (*parse)(DescriptorGroups&, int row, DescriptorBytes);
  void (*load)(DescriptorGroups&, int row, void* node);
};

template <class Descriptor>
void parse_into_row(DescriptorGroups& groups, int row, DescriptorBytes bytes) {
  DescriptorStorage::append(groups, row, Descriptor(bytes));
}

template <class Descriptor>
void load_into_row(DescriptorGroups& groups, int row, void* node) {
  Descriptor descriptor;
  descriptor.Parse(node);
  DescriptorStorage::append(groups, row, std::move(descriptor));
}

/// The rows of a set. They are made in the set's own source alone: what each costs the compiler is paid once.
template <class Set>
DescriptorRow const* rows_of();
template <>
DescriptorRow const* rows_of<DescriptorSet>();
template <>
DescriptorRow const* rows_of<AitDescriptorSet>();

/// The row of each tag: its own; without one, `user_private` from 0x80 on and `other` below.
template <std::size_t count>
constexpr std::array<unsigned char, 256> rows_of_tags(DescriptorRow const (&rows)[count]) {
  auto const row_of = [&rows](int tag) {
    int const kind = tag < 0x80 ? DescriptorRow::other : DescriptorRow::user_private;
    std::size_t without_class = 0;
    for (std::size_t row = 0; row < count; ++row) {
      if (rows[row].tag == tag) return row;
      if (rows[row].tag == kind) without_class = row;
    }
    return without_class;
  };
  std::array<unsigned char, 256> rows_by_tag{};
  for (int tag = 0; tag < 256; ++tag) {
    rows_by_tag[static_cast<std::size_t>(tag)] = static_cast<unsigned char>(row_of(tag));
  }
  return rows_by_tag;
}

}  // namespace sivane
