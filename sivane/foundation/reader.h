// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/descriptor_bytes.h>
#include <sivane/foundation/export.h>
#include <sivane/foundation/failure.h>

#include <cstddef>
#include <cstring>
#include <initializer_list>
#include <string>
#include <vector>

namespace sivane {

class ParseState;

/// Reads big-endian fields of any width in order: everything in the library that reads bytes does it through
/// here.
///
/// A reader has two ends. Its own bytes stop at its end, which is what `more`, `left` and `rest` go by.
/// Single fields may run over it, since many length fields of broadcasts are wrong, but never over its limit,
/// which is the end of the section: such a read throws the failure that the reader was made with. Sizes are
/// in bytes; one below 0 counts as none. Where the reader knows its place in a section, what it throws tells
/// where: at the byte where the field begins that cannot be read.
class SIVANE_API Reader {
 public:
  /// `size` bytes at `first` are the reader's own; `limit` bytes from `first` on may be read. `begin` is the
  /// offset of `first` in the section, -1 where there is none.
  Reader(unsigned char const* first, int size, int limit, Failure overrun = too_little_data, int begin = -1,
         ParseState* state = nullptr)
      : first_(first),
        end_(bits_of(size)),
        limit_(bits_of(limit)),
        overrun_(overrun),
        begin_(begin),
        state_(state) {}
  /// Exactly the bytes of a buffer.
  static Reader within(unsigned char const* first, int size, Failure overrun = too_little_data) {
    return {first, size, size, overrun};
  }
  /// For a record at a bare pointer, whose own length bytes are its only bound.
  static Reader trusting(unsigned char const* first);

  /// An unsigned field of at most 31 bits.
  int bits(int count) { return static_cast<int>(number(count)); }
  /// A field of one bit.
  bool flag() { return number(1) != 0; }
  /// A field of 8 bits.
  int u8() { return static_cast<int>(number(8)); }
  /// A field of 16 bits.
  int u16() { return static_cast<int>(number(16)); }
  /// A field of 32 bits.
  unsigned int u32() { return number(32); }
  /// A field of 32 bits as a signed number.
  int i32() { return static_cast<int>(number(32)); }
  /// Steps over them.
  void skip_bits(int count) { take(static_cast<std::size_t>(count)); }
  /// BCD digits, high nibble first, summed as digit times weight; a nibble above 9 counts with its value.
  double bcd(std::initializer_list<double> weights);

  // The operations below start at a whole byte.

  /// The address of the next `size` bytes, and steps over them.
  unsigned char const* raw(int size) { return at(take(bits_of(size))); }
  /// The next `size` bytes.
  std::string string(int size) { return {reinterpret_cast<char const*>(raw(size)), count_of(size)}; }
  /// The next `size` bytes.
  std::vector<unsigned char> bytes(int size) {
    unsigned char const* const first = raw(size);
    return {first, first + count_of(size)};
  }
  /// A length byte and that many characters.
  std::string prefixed_string() { return string(u8()); }
  /// An ISO 639 or ISO 3166 code: three bytes, and a terminating zero after them.
  void code(char (&three_letters)[4]) {
    std::memcpy(three_letters, raw(3), 3);
    three_letters[3] = '\0';
  }
  /// The bytes up to the reader's own end; none if the position is there or after it.
  std::string rest_as_string() { return string(left()); }
  /// As `rest_as_string`.
  std::vector<unsigned char> rest() { return bytes(left()); }

  /// A reader of the next `size` bytes with the same limit, and steps over them.
  Reader sub(int size) { return sub(size, overrun_); }
  /// The same with another failure, where the bytes pass the limit and for what is read from them.
  Reader sub(int size, Failure overrun);
  /// The descriptor that starts here, and steps over it; throws the reader's failure if it passes the limit.
  DescriptorBytes descriptor();
  /// A reader of a loop of the next `size` bytes with the same limit; this one stays where it is. The loop
  /// may claim more than the limit holds: `overrun` is thrown by the read that gets there.
  Reader loop(int size, Failure overrun) const {
    return {at(position_), size, bytes_to_limit(), overrun, offset(), state_};
  }
  /// Calls `take` with each descriptor that starts within the next `size` bytes, and steps over those bytes.
  /// Throws `failure` where one passes the limit, or, if the loop's end is `exact`, the bytes themselves.
  template <class Take>
  void each_descriptor(int size, Failure failure, Take take, LoopEnd end = LoopEnd::open) {
    descriptor_loop(size, failure, end, [&take](DescriptorLoop& loop) {
      while (loop.more()) take(loop.next());
    });
  }
  /// The same, where `take` goes through the loop.
  template <class Take>
  void descriptor_loop(int size, Failure failure, LoopEnd end, Take take) {
    DescriptorLoop loop(at(position_), size, bytes_to_limit(), failure, offset());
    take(loop);
    loop.close(end);
    raw(size);
  }

  /// Steps over a loop of `size` bytes that failed: to the reader's own end if they pass the limit.
  void skip_loop(int size);

  /// Records of their own sizes up to the end, after those that `found` has, each built from the reader and
  /// `arguments`; throws `failure` unless the last one ends there.
  template <class Record, class... Arguments>
  void walk(std::vector<Record>& found, Failure failure, Arguments... arguments);
  /// The same from none on, with the reader's failure.
  template <class Record>
  std::vector<Record> walk();
  /// Records of `size` bytes up to the end; throws `failure` unless that is a whole number of them.
  template <class Record>
  std::vector<Record> records(int size, Failure failure);
  /// Plain unsigned numbers of `width` bits up to the end; throws `failure` unless that is a whole number of
  /// them.
  template <class Number>
  std::vector<Number> numbers(int width, Failure failure);

  /// Whether bits of the reader's own are left.
  bool more() const { return position_ < end_; }
  /// Whether a read has passed the reader's own end.
  bool past_end() const { return position_ > end_; }
  /// Whole bytes between the position and the reader's own end.
  int left() const { return more() ? static_cast<int>((end_ - position_) / 8) : 0; }
  /// Whole bytes from the first on that were read.
  int consumed() const { return static_cast<int>(position_ / 8); }
  /// Bytes from the start of the section; -1 where there is none.
  int offset() const { return offset_at(position_); }
  /// Of the `Parse` that reads the section; null where there is none.
  ParseState* state() const { return state_; }
  /// Throws `failure`, whose place is `distance` bytes from the position: -1 for the byte that was read last.
  [[noreturn]] void fail(Failure failure, int distance = 0) const;
  /// Throws `failure` if fewer than `size` bytes of the reader's own are left.
  void need(int size, Failure failure) const {
    if (left() < size) fail(failure);
  }
  /// Throws `failure` if the bytes left are no whole number of items, or the position is after the end.
  void need_whole(int item_size, Failure failure) const {
    if (past_end() || left() % item_size != 0) raise(failure, offset_at(end_ - bits_of(left() % item_size)));
  }

 private:
  static constexpr std::size_t count_of(int bytes) { return bytes > 0 ? static_cast<std::size_t>(bytes) : 0; }
  static constexpr std::size_t bits_of(int bytes) { return count_of(bytes) * 8; }
  int bytes_to_limit() const { return static_cast<int>((limit_ - position_) / 8); }
  unsigned int number(int count) {
    auto const width = static_cast<std::size_t>(count);
    std::size_t const bit = take(width);
    std::size_t const touched = bit % 8 + width;  // bits of the field's bytes, up to its last one
    unsigned char const* byte = at(bit);
    unsigned long long value = 0;
    for (std::size_t read = 0; read < touched; read += 8) value = value << 8 | *byte++;
    return static_cast<unsigned int>(value >> (0 - touched) % 8 & ((1ull << width) - 1));
  }
  std::size_t take(std::size_t count) {
    if (count > limit_ - position_) fail(overrun_);
    position_ += count;
    return position_ - count;
  }
  unsigned char const* at(std::size_t bit) const { return first_ + bit / 8; }
  int offset_at(std::size_t bit) const { return begin_ < 0 ? -1 : begin_ + static_cast<int>(bit / 8); }

  unsigned char const* first_;
  std::size_t position_ = 0;  // positions are in bits
  std::size_t end_;
  std::size_t limit_;
  Failure overrun_;
  int begin_;  // where in the section `first_` is
  ParseState* state_;
};

inline Reader DescriptorBytes::body(Failure overrun) const {
  return {first + 2, length(), available - 2, overrun, offset < 0 ? -1 : offset + 2};
}

inline unsigned int DescriptorLoop::private_data_specifier() {
  constexpr int specifier_tag = 0x5F, size = 4;
  for (; searched_ < next_; searched_ += 2 + first_[searched_ + 1]) {
    if (first_[searched_] != specifier_tag) continue;
    DescriptorBytes const descriptor(first_ + searched_, first_ + limit_, -1);
    specifier_ = descriptor.length() < size ? 0 : descriptor.body().u32();
  }
  return specifier_;
}

template <class Record, class... Arguments>
void Reader::walk(std::vector<Record>& found, Failure failure, Arguments... arguments) {
  int begin = offset_at(end_);
  for (; more(); found.emplace_back(*this, arguments...)) begin = offset();
  if (past_end()) raise(failure, begin);
}

template <class Record>
std::vector<Record> Reader::walk() {
  std::vector<Record> found;
  walk(found, overrun_);
  return found;
}

template <class Record>
std::vector<Record> Reader::records(int size, Failure failure) {
  need_whole(size, failure);
  std::vector<Record> found;
  found.reserve(static_cast<std::size_t>(left() / size));
  while (more()) found.emplace_back(*this);
  return found;
}

template <class Number>
std::vector<Number> Reader::numbers(int width, Failure failure) {
  need_whole(width / 8, failure);
  std::vector<Number> found;
  found.reserve(static_cast<std::size_t>(left() / (width / 8)));
  while (more()) found.push_back(static_cast<Number>(number(width)));
  return found;
}

/// Builds a record from a bare pointer as its public constructors do; `consumed` is the bytes that it took.
template <class Record>
Record read_record(Reader reader, int& consumed) {
  Record record(reader);
  consumed = reader.consumed();
  return record;
}

}  // namespace sivane
