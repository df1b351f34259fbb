// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/reader.h>

#include <algorithm>
#include <limits>

namespace sivane {

namespace {

error as_error(Failure failure) {
  if (failure.text == nullptr) return {failure.code};
  if (failure.code == error::no_errorcode) return {failure.text};
  return {failure.code, failure.text};
}

}  // namespace

void raise(Failure failure, int offset) {
  error thrown = as_error(failure);
  thrown.offset = offset;
  throw thrown;
}

DescriptorBytes::DescriptorBytes(unsigned char const* descriptor)
    : first(descriptor), available(2 + descriptor[1]), offset(-1) {}

DescriptorBytes::DescriptorBytes(unsigned char const* descriptor, unsigned char const* end, int begin)
    : first(descriptor), available(static_cast<int>(end - descriptor)), offset(begin) {
  if (available < 2) raise(too_little_data, begin);
}

Reader DescriptorBytes::body(Failure overrun) const {
  return {first + 2, length(), available - 2, overrun, offset < 0 ? -1 : offset + 2};
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

void Reader::fail(Failure failure, int distance) const {
  raise(failure, begin_ < 0 ? -1 : offset() + distance);
}

void Reader::code(char (&three_letters)[4]) {
  std::copy_n(raw(3), 3, three_letters);
  three_letters[3] = '\0';
}

Reader Reader::sub(int size, Failure overrun) {
  Reader const own = loop(size, overrun);
  raw(size);
  return own;
}

Reader Reader::loop(int size, Failure overrun) const {
  return {at(position_), size, static_cast<int>((limit_ - position_) / 8), overrun, offset()};
}

DescriptorBytes Reader::descriptor() {
  unsigned char const* const first = at(position_);
  std::size_t const available = (limit_ - position_) / 8;
  if (available < 2 || available < 2u + first[1]) fail(overrun_);
  DescriptorBytes const found(first, at(limit_), offset());
  raw(2 + first[1]);
  return found;
}

}  // namespace sivane
