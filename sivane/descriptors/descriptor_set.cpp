// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/descriptor_set.h>

#include <array>
#include <utility>

namespace sivane {

struct DescriptorSet::Group {
  Group(int number, std::unique_ptr<Group> behind) : row(number), next(std::move(behind)) {}
  virtual ~Group() = default;
  virtual std::unique_ptr<Group> copy() const = 0;  // without those behind

  int row;
  std::unique_ptr<Group> next;
};

struct DescriptorSet::Storage {
  using Groups = std::unique_ptr<Group>;

  template <class Descriptor>
  struct GroupOf final : Group {
    using Group::Group;
    Groups copy() const override {
      auto alone = std::make_unique<GroupOf>(row, nullptr);
      alone->items = items;
      return alone;
    }
    std::vector<Descriptor> items;
  };

  /// Where the group of `row` is linked, or would be.
  static Groups& place(Groups& groups, int row) {
    Groups* at = &groups;
    while (*at && (*at)->row < row) at = &(*at)->next;
    return *at;
  }

  template <class Descriptor>
  static void append(Groups& groups, int row, DescriptorBytes bytes) {
    Descriptor descriptor(bytes);
    Groups& at = place(groups, row);
    if (!at || at->row != row) at = std::make_unique<GroupOf<Descriptor>>(row, std::move(at));
    static_cast<GroupOf<Descriptor>&>(*at).items.push_back(std::move(descriptor));
  }

  template <class Descriptor>
  static std::vector<Descriptor> const& items(Groups const& groups, int row) {
    static const std::vector<Descriptor> none;
    Group const* group = groups.get();
    while (group != nullptr && group->row < row) group = group->next.get();
    if (group == nullptr || group->row != row) return none;
    return static_cast<GroupOf<Descriptor> const&>(*group).items;
  }

  static Groups copy(Groups const& groups) {
    Groups copied;
    Groups* end = &copied;
    for (Group const* group = groups.get(); group != nullptr; group = group->next.get()) {
      *end = group->copy();
      end = &(*end)->next;
    }
    return copied;
  }
};

namespace {

/// Rows are numbered in their order, each by the name of its getter.
namespace row_number {
enum : int {
#define SIVANE_ROW(tag, Class, getter, element, tag_text) getter,
#define SIVANE_GENERAL_ROW(kind, getter, element) getter,
#include <sivane/descriptors/descriptor_rows.inc>
};
}  // namespace row_number

constexpr std::array<unsigned char, 256> make_row_of_tag() {
  std::array<unsigned char, 256> rows{};
  for (std::size_t tag = 0; tag < rows.size(); ++tag) {
    rows[tag] = tag < 0x80 ? row_number::get_general_descriptors : row_number::get_user_private_descriptors;
  }
#define SIVANE_ROW(tag, Class, getter, element, tag_text) rows[tag] = row_number::getter;
#include <sivane/descriptors/descriptor_rows.inc>
  return rows;
}

constexpr std::array<unsigned char, 256> row_of_tag = make_row_of_tag();

}  // namespace

void DescriptorSet::ParseDescriptor(DescriptorBytes descriptor) {
  using Append = void (*)(Storage::Groups&, int, DescriptorBytes);
  static constexpr Append append[] = {
#define SIVANE_ROW(tag, Class, getter, element, tag_text) &Storage::append<Class>,
#define SIVANE_GENERAL_ROW(kind, getter, element) &Storage::append<DescriptorGeneral>,
#include <sivane/descriptors/descriptor_rows.inc>
  };
  const int row = row_of_tag[static_cast<std::size_t>(descriptor.tag())];
  append[row](groups_, row, descriptor);
}

bool DescriptorSet::parse_descriptors(Reader& reader, int size, Failure overrun) {
  Reader loop = reader.sub(size, overrun);
  while (loop.more()) ParseDescriptor(loop.descriptor());
  return !loop.past_end();
}

// Out of line, so that the files of owners need not know how 71 kinds of vectors are copied and freed.
DescriptorSet::DescriptorSet() noexcept = default;
DescriptorSet::DescriptorSet(DescriptorSet const& other) : groups_(Storage::copy(other.groups_)) {}
DescriptorSet::DescriptorSet(DescriptorSet&&) noexcept = default;
DescriptorSet& DescriptorSet::operator=(DescriptorSet const& other) {
  groups_ = Storage::copy(other.groups_);
  return *this;
}
DescriptorSet& DescriptorSet::operator=(DescriptorSet&&) noexcept = default;
DescriptorSet::~DescriptorSet() = default;

#define SIVANE_ROW(tag, Class, getter, element, tag_text)      \
  std::vector<Class> const& DescriptorSet::getter() const {    \
    return Storage::items<Class>(groups_, row_number::getter); \
  }
#define SIVANE_GENERAL_ROW(kind, getter, element)                          \
  std::vector<DescriptorGeneral> const& DescriptorSet::getter() const {    \
    return Storage::items<DescriptorGeneral>(groups_, row_number::getter); \
  }
#include <sivane/descriptors/descriptor_rows.inc>

}  // namespace sivane
