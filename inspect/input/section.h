// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/section_size.h>

#include <cstddef>
#include <span>
#include <string_view>

namespace inspect {

/// A section as an input delivers it, in its bytes, as an element of a document or as JSON; views of the
/// input's storage, valid during the call.
struct Section {
  static constexpr int no_pid = -1;

  std::span<unsigned char const> bytes = {};  ///< section_length + 3 of them; none of an element
  void* node = nullptr;                       ///< the element, an `IXMLDOMNode*`
  std::string_view json = {};                 ///< the table as the text of a JSON object
  int pid = no_pid;
  long long offset = -1;  ///< in the input, of the packet in which it began; -1 where there are no packets
  std::string_view class_name = {};  ///< names the class to parse with; empty: by table id

  int table_id() const { return bytes[0]; }
};

/// Bytes that tell how long a section is.
inline constexpr std::size_t section_start_size = 3;

/// The whole size that the first three bytes of a section claim.
inline std::size_t claimed_size(unsigned char const* section) {
  return static_cast<std::size_t>(sivane::section_size(section));
}

}  // namespace inspect
