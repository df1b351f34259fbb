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
  return {first + 2, length(), static_cast<int>(limit - first) - 2, overrun};
}

Reader Reader::trusting(unsigned char const* first) { return within(first, std::numeric_limits<int>::max()); }

unsigned int Reader::number(int count) {
  auto remaining = static_cast<std::size_t>(count);
  std::size_t bit = take(remaining);
  unsigned int value = 0;
  while (remaining > 0) {
    std::size_t const in_byte = std::min(remaining, 8 - bit % 8);
    unsigned int const chunk = *at(bit) >> (8 - bit % 8 - in_byte) & ((1u << in_byte) - 1);
    value = value << in_byte | chunk;
    bit += in_byte;
    remaining -= in_byte;
  }
  return value;
}

double Reader::bcd(std::initializer_list<double> weights) {
  double value = 0;
  for (double const weight : weights) value += bits(4) * weight;
  return value;
}

std::string Reader::string(int size) { return {reinterpret_cast<char const*>(raw(size)), count_of(size)}; }

std::vector<unsigned char> Reader::bytes(int size) {
  unsigned char const* const first = raw(size);
  return {first, first + count_of(size)};
}

void Reader::code(char (&three_letters)[4]) {
  std::copy_n(raw(3), 3, three_letters);
  three_letters[3] = '\0';
}

Reader Reader::sub(int size, Failure overrun) {
  unsigned char const* const first = raw(size);
  return {first, size, size + static_cast<int>((limit_ - position_) / 8), overrun};
}

Reader Reader::loop(int size, Failure overrun) const {
  return {at(position_), size, static_cast<int>((limit_ - position_) / 8), overrun};
}

DescriptorBytes Reader::descriptor() {
  unsigned char const* const first = raw(2);
  raw(first[1]);
  return {first, at(limit_)};
}

}  // namespace sivane
