// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/error.h>
#include <sivane/foundation/export.h>

#include <cstddef>
#include <initializer_list>
#include <string>
#include <vector>

namespace sivane {

/// What is thrown when bytes run out: a code alone, a text alone (`no_errorcode`) or both.
struct Failure {
  error::errorcode_enum code = error::no_errorcode;
  char const* text = nullptr;
};
[[noreturn]] SIVANE_API void raise(Failure failure);

/// Thrown where no rule names another failure.
inline constexpr Failure too_little_data{error::no_errorcode, "too little data"};

class Reader;

/// One descriptor and how far its reading may go. A bare pointer is bounded by the descriptor's own length
/// byte.
struct SIVANE_API DescriptorBytes {
  DescriptorBytes(unsigned char const* descriptor);
  /// `end` is where the section ends. Throws "too little data" where not even tag and length stand before it.
  DescriptorBytes(unsigned char const* descriptor, unsigned char const* end);

  int tag() const { return first[0]; }
  int length() const { return first[1]; }
  /// A reader of the body; `overrun` is thrown by a read that would pass `limit`.
  Reader body(Failure overrun = too_little_data) const;

  unsigned char const* first;
  unsigned char const* limit;
};

/// Reads big-endian fields of any width in order: everything in the library that reads bytes does it through
/// here.
///
/// A reader has two ends. Its own bytes stop at its end, which is what `more`, `left` and `rest` go by.
/// Single fields may run over it, since many length fields of broadcasts are wrong, but never over its limit,
/// which is the end of the section: such a read throws the failure that the reader was made with.
class SIVANE_API Reader {
 public:
  /// `size` bytes at `first` are the reader's own; `limit` bytes from `first` on may be read.
  Reader(unsigned char const* first, std::size_t size, std::size_t limit, Failure overrun = too_little_data)
      : first_(first), end_(size * 8), limit_(limit * 8), overrun_(overrun) {}
  /// Exactly the bytes of a buffer; a size below 0 is none.
  static Reader within(unsigned char const* first, int size);
  /// For a record at a bare pointer, whose own length bytes are its only bound.
  static Reader trusting(unsigned char const* first);

  /// An unsigned field of at most 31 bits.
  int bits(unsigned int count) { return static_cast<int>(number(count)); }
  bool flag() { return number(1) != 0; }
  int u8() { return static_cast<int>(number(8)); }
  int u16() { return static_cast<int>(number(16)); }
  unsigned int u32() { return number(32); }
  void skip_bits(unsigned int count) { take(count); }

  // The operations below start at a whole byte.

  /// An ISO 639 or ISO 3166 code: three bytes, and a terminating zero behind them.
  void code(char (&three_letters)[4]);
  /// BCD digits, high nibble first, summed as digit times weight; a nibble above 9 counts with its value.
  double bcd(std::initializer_list<double> weights);
  std::string string(std::size_t size);
  std::vector<unsigned char> bytes(std::size_t size);
  /// The bytes up to the reader's own end; none if the position is there or behind it.
  std::string rest_as_string() { return string(left()); }
  std::vector<unsigned char> rest() { return bytes(left()); }
  /// The address of the next `size` bytes, and steps over them.
  unsigned char const* raw(std::size_t size) { return at(take(size * 8)); }
  /// A reader of the next `size` bytes with the same limit, and steps over them.
  Reader sub(std::size_t size, Failure overrun);
  /// The descriptor that starts here, and steps over it; throws the reader's failure if it passes the limit.
  DescriptorBytes descriptor();

  bool more() const { return position_ < end_; }
  bool past_end() const { return position_ > end_; }
  std::size_t left() const { return more() ? (end_ - position_) / 8 : 0; }
  std::size_t consumed() const { return position_ / 8; }
  /// Throws `failure` if fewer than `size` bytes of the reader's own are left.
  void need(std::size_t size, Failure failure) const {
    if (left() < size) raise(failure);
  }

 private:
  unsigned int number(unsigned int count);
  std::size_t take(std::size_t count) {
    if (count > limit_ - position_) raise(overrun_);
    position_ += count;
    return position_ - count;
  }
  unsigned char const* at(std::size_t bit) const { return first_ + bit / 8; }

  unsigned char const* first_;
  std::size_t position_ = 0;  // positions are in bits
  std::size_t end_;
  std::size_t limit_;
  Failure overrun_;
};

/// Builds a record from a bare pointer as its public constructors do; `consumed` is the bytes that it took.
template <class Record>
Record read_record(Reader reader, int& consumed) {
  Record record(reader);
  consumed = static_cast<int>(reader.consumed());
  return record;
}

}  // namespace sivane
