// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>

#include <memory>

namespace sivane {

/// What a descriptor set is stored in: a vector for each of its rows that holds something. Empty it is one
/// null pointer, and copying it then costs nothing.
class SIVANE_API DescriptorGroups {
 public:
  DescriptorGroups() noexcept;
  DescriptorGroups(DescriptorGroups const& other);
  DescriptorGroups(DescriptorGroups&& other) noexcept;
  DescriptorGroups& operator=(DescriptorGroups const& other);
  DescriptorGroups& operator=(DescriptorGroups&& other) noexcept;
  ~DescriptorGroups();

 private:
  struct SIVANE_LOCAL Group;        // the vector of one row
  friend struct DescriptorStorage;  // what is done with groups

  std::unique_ptr<Group> first_;  // linked in row order
};

}  // namespace sivane
