// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: what one `Parse` of a section knows wherever its bytes are read.
#pragma once

#include <sivane/foundation/parse_options.h>
#include <sivane/foundation/reader.h>

namespace sivane {

class ParseState {
 public:
  /// Without options nothing is left out and every failure is thrown.
  ParseState(int section_size, ParseOptions* options)
      : bytes_left_(section_size * filed_bytes_a_byte), options_(options) {}

  bool has_options() const { return options_ != nullptr; }
  bool tolerant() const { return options_ != nullptr && options_->tolerant; }
  /// Counts `bytes` of descriptors as filed; throws where that is too much for the section.
  void charge(int bytes, int offset) {
    bytes_left_ -= bytes;
    if (bytes_left_ < 0) raise({error::no_errorcode, "descriptors overlap too much"}, offset);
  }
  /// Whether a descriptor is to be built; counts it one way or the other.
  bool admits(DescriptorBytes descriptor) {
    if (options_ != nullptr && !options_->tags[static_cast<std::size_t>(descriptor.tag())]) {
      ++options_->skipped;
      return false;
    }
    charge(2 + descriptor.length(), descriptor.offset);
    return true;
  }
  void list(error const& failure, int tag) {
    options_->problems.push_back({failure.offset, tag, failure.code, failure.text});
  }
  /// Runs it, and lists the `error` that it throws if that is wanted; true if it threw none.
  template <class Action>
  bool attempt(int tag, Action action) {
    if (!tolerant()) return action(), true;
    try {
      action();
    } catch (error const& failure) {
      list(failure, tag);
      return false;
    }
    return true;
  }

 private:
  // Each of many minimal entries may begin a descriptor of 255 bytes over the entries that follow, so that 4
  // KB would become 200 KB of descriptors and megabytes of document. Where nothing overlaps it is at most 1.
  static constexpr int filed_bytes_a_byte = 16;

  int bytes_left_;  // of the descriptors that the section may still file
  ParseOptions* options_;
};

/// As `Reader::fail`, and goes on where problems are listed.
inline void fail_or_list(Reader const& reader, Failure failure, int distance) {
  auto const fail = [&] { reader.fail(failure, distance); };
  if (reader.state() == nullptr) fail();
  reader.state()->attempt(-1, fail);
}

/// Takes the descriptors of a loop by `file`, those that fail by `file_as_bytes`, as the state of `reader`
/// wants it; both are told the private_data_specifier in force too. All else is as in
/// `Reader::each_descriptor`.
template <class File, class FileAsBytes>
void file_descriptors(Reader& reader, int size, Failure failure, LoopEnd end, File file,
                      FileAsBytes file_as_bytes) {
  ParseState* const state = reader.state();
  auto const take = [&](DescriptorBytes descriptor, unsigned int specifier) {
    if (state == nullptr) return file(descriptor, specifier);
    if (!state->admits(descriptor)) return;
    bool const is_filed = state->attempt(descriptor.tag(), [&] { file(descriptor, specifier); });
    if (!is_filed) file_as_bytes(descriptor, specifier);
  };
  auto const take_all = [&] {
    reader.descriptor_loop(size, failure, end, [&](DescriptorLoop& loop) {
      while (loop.more()) {
        DescriptorBytes const descriptor = loop.next();
        take(descriptor, loop.private_data_specifier());
      }
    });
  };
  if (state == nullptr) return take_all();
  if (!state->attempt(-1, take_all)) reader.skip_loop(size);
}

}  // namespace sivane
