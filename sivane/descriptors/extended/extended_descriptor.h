// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/descriptors/descriptor.h>

namespace sivane {

/// What the descriptors have in common that no set files: they are built on demand, see extended.h. Nothing
/// is read outside the bytes that the length claims: what is shorter than its fields throws "too little
/// data". Bytes behind the last field, which later editions may add, are ignored where no member takes them.
/// A field whose condition is not met keeps its start value.
class SIVANE_API ExtendedDescriptor : public DescriptorBase {
 public:
  virtual ~ExtendedDescriptor() = default;
  /// A line for each field, "name: value", those of a record with its list's name and a dot before them.
  void _dump_state(std::ostream& os) const override;
  /// Empties the texts, bytes and lists that the class has.
  void _reset() override {}

 protected:
  ExtendedDescriptor() = default;
  /// Takes tag and length alone.
  explicit ExtendedDescriptor(DescriptorBytes descriptor) : DescriptorBase(descriptor) {}
  ExtendedDescriptor(ExtendedDescriptor const&) = default;
  ExtendedDescriptor(ExtendedDescriptor&&) = default;
  ExtendedDescriptor& operator=(ExtendedDescriptor const&) = default;
  ExtendedDescriptor& operator=(ExtendedDescriptor&&) = default;
};

}  // namespace sivane
