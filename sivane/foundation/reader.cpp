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

error at(int offset, error failure) {
  failure.offset = offset;
  return failure;
}

}  // namespace

void raise(Failure failure, int offset) { throw at(offset, as_error(failure)); }

Reader Reader::trusting(unsigned char const* first) { return within(first, std::numeric_limits<int>::max()); }

double Reader::bcd(std::initializer_list<double> weights) {
  double value = 0;
  for (double const weight : weights) value += bits(4) * weight;
  return value;
}

void Reader::fail(Failure failure, int distance) const {
  raise(failure, begin_ < 0 ? -1 : offset() + distance);
}

Reader Reader::sub(int size, Failure overrun) {
  Reader const own = loop(size, overrun);
  if (bits_of(size) > limit_ - position_) own.fail(overrun);
  raw(size);
  return own;
}

void Reader::skip_loop(int size) {
  std::size_t const end = position_ + bits_of(size);
  position_ = end <= limit_ ? end : std::max(position_, std::min(end_, limit_));
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
