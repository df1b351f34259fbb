// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Out of line, so that the files of owners need not know how their vectors are copied and freed.
#include <sivane/descriptors/descriptor_storage.h>

namespace sivane {

DescriptorGroups::DescriptorGroups() noexcept = default;
DescriptorGroups::DescriptorGroups(DescriptorGroups const& other) : first_(DescriptorStorage::copy(other)) {}
DescriptorGroups::DescriptorGroups(DescriptorGroups&&) noexcept = default;
DescriptorGroups& DescriptorGroups::operator=(DescriptorGroups const& other) {
  first_ = DescriptorStorage::copy(other);
  return *this;
}
DescriptorGroups& DescriptorGroups::operator=(DescriptorGroups&&) noexcept = default;
DescriptorGroups::~DescriptorGroups() = default;

}  // namespace sivane
