// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/reader.h>

#include <algorithm>
#include <limits>

namespace sivane {

void raise(Failure failure) {
  if (failure.text == nullptr) throw error(failure.code);
  if (failure.code == error::no_errorcode) throw error(failure.text);
  throw error(failure.code, failure.text);
}

DescriptorBytes::DescriptorBytes(unsigned char const* descriptor)
    : first(descriptor), limit(descriptor + 2 + descriptor[1]) {}

DescriptorBytes::DescriptorBytes(unsigned char const* descriptor, unsigned char const* end)
    : first(descriptor), limit(end) {
  if (end - descriptor < 2) raise(too_little_data);
}

Reader DescriptorBytes::body(Failure overrun) const {
  const auto available = static_cast<std::size_t>(limit - first) - 2;
  return {first + 2, static_cast<std::size_t>(length()), available, overrun};
}

Reader Reader::within(unsigned char const* first, int size) {
  const auto bytes = static_cast<std::size_t>(std::max(size, 0));
  return {first, bytes, bytes};
}

Reader Reader::trusting(unsigned char const* first) {
  constexpr std::size_t unbounded = std::numeric_limits<std::size_t>::max() / 8;
  return {first, unbounded, unbounded};
}

unsigned int Reader::number(unsigned int count) {
  std::size_t bit = take(count);
  unsigned int value = 0;
  while (count > 0) {
    const auto offset = static_cast<unsigned int>(bit % 8);
    const unsigned int taken = std::min(count, 8 - offset);
    const unsigned int chunk = (*at(bit) >> (8 - offset - taken)) & ((1u << taken) - 1);
    value = value << taken | chunk;
    bit += taken;
    count -= taken;
  }
  return value;
}

void Reader::code(char (&three_letters)[4]) {
  std::copy_n(raw(3), 3, three_letters);
  three_letters[3] = '\0';
}

double Reader::bcd(std::initializer_list<double> weights) {
  double value = 0;
  for (const double weight : weights) value += bits(4) * weight;
  return value;
}

std::string Reader::string(std::size_t size) { return {reinterpret_cast<char const*>(raw(size)), size}; }

std::vector<unsigned char> Reader::bytes(std::size_t size) {
  unsigned char const* const first = raw(size);
  return {first, first + size};
}

Reader Reader::sub(std::size_t size, Failure overrun) {
  const std::size_t bit = position_;
  if (size > (limit_ - bit) / 8) raise(overrun);
  position_ += size * 8;
  return {at(bit), size, (limit_ - bit) / 8, overrun};
}

DescriptorBytes Reader::descriptor() {
  unsigned char const* const first = raw(2);
  raw(first[1]);
  return {first, first_ + limit_ / 8};
}

}  // namespace sivane
