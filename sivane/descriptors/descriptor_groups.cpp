// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Out of line, so that the files of owners need not know how their vectors are copied and freed.
#include <sivane/descriptors/descriptor_storage.h>

namespace sivane {

namespace {

/// Of a block that fills one descriptor after the other: few loops have more tags that a host asks for.
constexpr std::size_t first_capacity = 4;

}  // namespace

void DescriptorGroups::copy(DescriptorGroups const& other) {
  if (other.block_ == nullptr) return;
  DescriptorStorage::reserve(*this, other.block_->size);
  for (Block::Slot& slot : *other.block_) {
    Block::Slot* const copied = block_->end();
    copied->row = slot.row;
    copied->operations = slot.operations;
    slot.operations->copy(copied->vector(), slot.vector());
    ++block_->size;
  }
}

void DescriptorGroups::release() noexcept {
  for (Block::Slot& slot : *block_) slot.operations->destroy(slot.vector());
  ::operator delete(block_);
}

void DescriptorStorage::reserve(DescriptorGroups& groups, std::size_t capacity) {
  Block* const made = new (::operator new(sizeof(Block) + capacity * sizeof(Slot))) Block{0, capacity};
  if (groups.block_ != nullptr) {
    for (Slot& slot : *groups.block_) {
      Slot* const moved = made->end();
      moved->row = slot.row;
      moved->operations = slot.operations;
      slot.operations->relocate(moved->vector(), slot.vector());
      ++made->size;
    }
    ::operator delete(groups.block_);
  }
  groups.block_ = made;
}

void* DescriptorStorage::make(DescriptorGroups& groups, VectorOperations const& operations, int row,
                              std::size_t reserved) {
  Block const* const block = groups.block_;
  if (block == nullptr || block->size == block->capacity) {
    reserve(groups, block == nullptr ? first_capacity : 2 * block->capacity);
  }
  Slot* const slot = groups.block_->end();
  slot->row = row;
  slot->operations = &operations;
  operations.make(slot->vector(), reserved);
  ++groups.block_->size;
  return slot->vector();
}

void DescriptorStorage::parse(DescriptorGroups& groups, DescriptorRow const* rows, RowOfTag const& row_of_tag,
                              DescriptorLoop& loop) {
  if (groups.block_ == nullptr) {
    std::size_t const runs = loop.runs();
    if (runs > 0) reserve(groups, runs);
  }
  while (loop.more()) {
    std::size_t run = loop.run();
    DescriptorBytes const first = loop.next();
    int const row = row_of_tag[static_cast<std::size_t>(first.tag())];
    auto* const parse_into = rows[row].operations->parse;
    void* const filed = vector(groups, rows, row, run);
    std::size_t const count = run;
    for (parse_into(filed, first); run > 1; --run) parse_into(filed, loop.next());
    if (rows[row].is_kept_as_bytes()) remember(filed, count, loop.private_data_specifier());
  }
}

void DescriptorStorage::file(DescriptorGroups& groups, DescriptorRow const* rows, int row,
                             DescriptorBytes descriptor, unsigned int private_data_specifier) {
  void* const filed = vector(groups, rows, row);
  rows[row].operations->parse(filed, descriptor);
  if (rows[row].is_kept_as_bytes()) remember(filed, 1, private_data_specifier);
}

void DescriptorStorage::remember(void* filed, std::size_t count, unsigned int private_data_specifier) {
  std::vector<DescriptorGeneral>& descriptors = VectorOf<DescriptorGeneral>::of(filed);
  for (std::size_t i = descriptors.size() - count; i < descriptors.size(); ++i) {
    descriptors[i].private_data_specifier = private_data_specifier;
  }
}

void DescriptorStorage::erase(DescriptorGroups& groups, int row) {
  Slot* const slot = find(groups, row);
  if (slot == nullptr) return;
  slot->operations->destroy(slot->vector());
  Slot* const last = groups.block_->end() - 1;
  --groups.block_->size;
  if (slot == last) return;
  slot->row = last->row;
  slot->operations = last->operations;
  slot->operations->relocate(slot->vector(), last->vector());
}

DescriptorStorage::Slot* DescriptorStorage::next(DescriptorGroups const& groups, int row) {
  Slot* found = nullptr;
  if (groups.block_ == nullptr) return found;
  for (Slot& slot : *groups.block_) {
    if (slot.row > row && (found == nullptr || slot.row < found->row)) found = &slot;
  }
  return found;
}

}  // namespace sivane
