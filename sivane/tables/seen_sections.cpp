// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/reader.h>
#include <sivane/tables/crc.h>
#include <sivane/tables/seen_sections.h>

#include <algorithm>
#include <utility>

namespace sivane {

namespace {

constexpr std::size_t reach = 32;  // slots that a section may stand in, from its own on
constexpr std::size_t first_size = 256;
constexpr int least_size = 12;  // of a long-form section: header and CRC
constexpr std::uint64_t in_use = 1ull << 63;
constexpr std::uint64_t version_bits = 0x1F;

bool is_sdt(int table_id) { return table_id == 0x42 || table_id == 0x46; }

bool is_eit(int table_id) { return table_id >= 0x4E && table_id <= 0x6F; }

std::uint64_t identity(std::uint64_t key) { return key & ~version_bits; }

/// The bits of both, spread over all bits by multiplications with odd numbers.
std::size_t hash(std::uint64_t key, std::uint32_t place) {
  constexpr std::uint64_t odd = 0x9E3779B97F4A7C15;
  std::uint64_t const mixed = (identity(key) ^ place * odd) * odd;
  return static_cast<std::size_t>((mixed ^ mixed >> 32) * odd >> 32);
}

}  // namespace

SeenSections::SeenSections(std::size_t capacity) : capacity_(std::max<std::size_t>(capacity, 1)) {}

SeenSections::Sighting SeenSections::see(int pid, unsigned char const* section) {
  Reader header = Reader::within(section, 3);
  header.skip_bits(8);
  bool const is_long = header.flag();
  header.skip_bits(3);
  int const size = header.bits(12) + 3;
  if (!is_long || size < least_size) return Sighting::unknowable;
  Slot const seen = slot_of(pid, section, size);
  Slot* const known = find(seen);
  if (known != nullptr && known->key == seen.key && known->crc == seen.crc) return Sighting::repeated;
  if (crc_register(section, static_cast<std::size_t>(size)) != 0) return Sighting::unknowable;
  if (known == nullptr) {
    insert(seen);
    return Sighting::first;
  }
  bool const is_same_version = known->key == seen.key;
  *known = seen;
  return is_same_version ? Sighting::changed : Sighting::new_version;
}

void SeenSections::clear() {
  std::fill(slots_.begin(), slots_.end(), Slot());
  size_ = 0;
}

SeenSections::Slot SeenSections::slot_of(int pid, unsigned char const* section, int size) {
  Reader reader = Reader::within(section, size);
  Slot slot;
  std::uint64_t key = static_cast<std::uint64_t>(pid & 0x1FFF);
  auto const take = [&](int bits) { key = key << bits | static_cast<std::uint64_t>(reader.bits(bits)); };
  int const table_id = section[0];
  take(8);
  reader.skip_bits(16);
  take(16);
  reader.skip_bits(2);
  int const version = reader.bits(5);
  take(1);
  take(8);
  slot.key = in_use | key << 5 | static_cast<std::uint64_t>(version);
  reader.skip_bits(8);
  if (is_sdt(table_id)) slot.place = static_cast<std::uint32_t>(reader.u16());
  if (is_eit(table_id)) slot.place = reader.u32();
  slot.crc = Reader::within(section + size - 4, 4).u32();
  return slot;
}

SeenSections::Slot* SeenSections::find(Slot const& wanted) {
  if (slots_.empty()) return nullptr;
  std::size_t const own = hash(wanted.key, wanted.place);
  for (std::size_t i = 0; i < reach; ++i) {
    Slot& slot = slots_[(own + i) & (slots_.size() - 1)];
    if (slot.key == 0) return nullptr;
    if (identity(slot.key) == identity(wanted.key) && slot.place == wanted.place) return &slot;
  }
  return nullptr;
}

void SeenSections::insert(Slot const& slot) {
  if (size_ == capacity_) clear();
  if (2 * size_ >= slots_.size()) grow();
  while (!put(slot)) grow();
}

bool SeenSections::put(Slot const& slot) {
  std::size_t const own = hash(slot.key, slot.place);
  for (std::size_t i = 0; i < reach; ++i) {
    Slot& free = slots_[(own + i) & (slots_.size() - 1)];
    if (free.key != 0) continue;
    free = slot;
    ++size_;
    return true;
  }
  return false;
}

/// Where there is no more to be had, all are forgotten. So are those for which there is no slot in reach, as
/// nothing but a stream made for it brings about.
void SeenSections::grow() {
  if (slots_.size() >= 2 * capacity_) return clear();
  std::vector<Slot> const old =
      std::exchange(slots_, std::vector<Slot>(std::max(first_size, 2 * slots_.size())));
  size_ = 0;
  for (Slot const& slot : old) {
    if (slot.key != 0) put(slot);
  }
}

}  // namespace sivane
