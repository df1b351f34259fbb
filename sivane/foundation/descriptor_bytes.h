// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>
#include <sivane/foundation/failure.h>

#include <cstddef>

namespace sivane {

class Reader;

/// One descriptor, how far its reading may go, and where in its section it begins. A bare pointer is bounded
/// by the descriptor's own length byte and belongs to no section.
struct SIVANE_API DescriptorBytes {
  /// The bytes that its length byte claims.
  DescriptorBytes(unsigned char const* descriptor)
      : first(descriptor), available(2 + descriptor[1]), offset(-1) {}
  /// `end` is where the section ends, `begin` the descriptor's offset in it, -1 for none. Throws "too little
  /// data" where not even tag and length are before the end.
  DescriptorBytes(unsigned char const* descriptor, unsigned char const* end, int begin = -1)
      : first(descriptor), available(static_cast<int>(end - descriptor)), offset(begin) {
    if (available < 2) raise(too_little_data, begin);
  }

  int tag() const { return first[0]; }     ///< 8 bits
  int length() const { return first[1]; }  ///< 8 bits, bytes of the body
  /// A reader of the body; `overrun` is thrown by a read that would pass `limit`.
  Reader body(Failure overrun = too_little_data) const;

  unsigned char const* first;  ///< the tag
  int available;               ///< bytes from `first` on that may be read
  int offset;                  ///< bytes from the start of the section to `first`; -1 where there is none
};

/// Whether the last descriptor of a loop may run over the loop.
enum class LoopEnd { open, exact };

/// Descriptors one after the other in `size` bytes. The last one may run over them, but none over the limit,
/// which is the end of the section. A host that wants one of them needs no set: what is not built costs
/// nothing.
///
///     for (DescriptorBytes const descriptor : DescriptorLoop(bytes, size)) {
///       if (descriptor.tag() == 0x4D) use(DescriptorShortEvent(descriptor));
///     }
class DescriptorLoop {
 public:
  /// `limit` bytes from `first` on may be read; `begin` is the offset of `first` in the section, -1 for none.
  /// `failure` is what is thrown.
  DescriptorLoop(unsigned char const* first, int size, int limit, Failure failure, int begin)
      : first_(first), size_(size), limit_(limit), failure_(failure), begin_(begin) {}

  /// `size` bytes of which nothing more is known: a descriptor that leaves them throws "descriptor start end
  /// mismatch".
  DescriptorLoop(unsigned char const* first, int size)
      : DescriptorLoop(first, size, size, {error::no_errorcode, "descriptor start end mismatch"}, -1) {}

  class iterator;
  /// What an iterator is compared with.
  struct end_of_loop {};
  /// At the next one.
  iterator begin() const;
  /// Where there are no more.
  end_of_loop end() const { return {}; }

  /// Whether a further one begins within the loop.
  bool more() const { return next_ < size_; }
  /// The next one; throws where it passes the limit.
  DescriptorBytes next() {
    last_ = next_;
    if (!fits(next_, limit_)) raise(failure_, offset());
    next_ += 2 + first_[next_ + 1];
    return {first_ + last_, first_ + limit_, offset()};
  }
  /// The private_data_specifier in force at the one that was taken last, 32 bits: whose private tags those
  /// are that follow (ETSI EN 300 468, 6.2.31). 0 where none was given, or one that is too short. Looked for
  /// where somebody asks, so that loops without private descriptors do not pay.
  unsigned int private_data_specifier();
  /// Once there are no more: throws where the last one has run over the loop and may not.
  void close(LoopEnd end) const {
    if (end == LoopEnd::exact && next_ > size_) raise(failure_, offset());
  }

  /// The bytes of those that were taken.
  int taken() const { return next_; }
  /// Where in the section the last of them begins; -1 where there is none.
  int last() const { return offset(); }

  /// How many descriptors of the next one's tag follow each other from here.
  std::size_t run() const {
    std::size_t found = 0;
    int const end = size_ < limit_ ? size_ : limit_;
    for (int at = next_; end - at >= 2 && first_[at] == first_[next_]; at += 2 + first_[at + 1]) ++found;
    return found;
  }
  /// How many such runs there are.
  std::size_t runs() const {
    std::size_t found = 0;
    int const end = size_ < limit_ ? size_ : limit_;
    int tag = -1;
    for (int at = next_; end - at >= 2; at += 2 + first_[at + 1]) {
      found += first_[at] != tag ? 1u : 0u;
      tag = first_[at];
    }
    return found;
  }

 private:
  bool fits(int at, int end) const { return end - at >= 2 && end - at - 2 >= first_[at + 1]; }
  int offset() const { return begin_ < 0 ? -1 : begin_ + last_; }

  unsigned char const* first_;
  int next_ = 0;  // where the next one begins
  int last_ = 0;  // where the last one that was asked for did
  int size_;
  int limit_;
  Failure failure_;
  int begin_;
  int searched_ = 0;  // how far for specifiers
  unsigned int specifier_ = 0;
};

/// For a loop over them: going on to one that leaves the limit throws.
class DescriptorLoop::iterator {
 public:
  /// At the next one of `loop`.
  explicit iterator(DescriptorLoop const& loop) : loop_(loop) {}

  /// The descriptor; throws where it leaves the limit.
  DescriptorBytes operator*() const { return DescriptorLoop(loop_).next(); }
  /// Goes on behind it.
  iterator& operator++() {
    loop_.next();
    return *this;
  }
  /// Whether there is one.
  bool operator!=(end_of_loop) const { return loop_.more(); }

 private:
  DescriptorLoop loop_;
};

inline DescriptorLoop::iterator DescriptorLoop::begin() const { return iterator(*this); }

}  // namespace sivane
