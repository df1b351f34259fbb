// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/descriptors/application.h>
#include <sivane/descriptors/descriptor_groups.h>
#include <sivane/foundation/export.h>
#include <sivane/foundation/reader.h>

#include <iosfwd>
#include <vector>

namespace sivane {

/// The descriptors of an AIT, filed by the tags of their own space: one vector for each class of 0x00 to
/// 0x0D, one for 0x0E to 0x7F and one for 0x80 to 0xFF. In all else like `DescriptorSet`; the rows are in
/// ait_descriptor_rows.inc.
class SIVANE_API AitDescriptorSet {
 public:
  /// As `DescriptorSet::ParseDescriptor`.
  void ParseDescriptorAit(DescriptorBytes descriptor);
  /// The same, and remembers the private_data_specifier in force.
  void ParseDescriptorAit(DescriptorBytes descriptor, unsigned int private_data_specifier);
  /// As `DescriptorSet::file_as_bytes`.
  void file_as_bytes(DescriptorBytes descriptor);
  /// The same, and remembers the private_data_specifier in force.
  void file_as_bytes(DescriptorBytes descriptor, unsigned int private_data_specifier);
  /// As `DescriptorSet::parse_descriptors`.
  void parse_descriptors(Reader& reader, int size, Failure failure, LoopEnd end = LoopEnd::open);
  /// Empties the vector of `get_general_descriptors`.
  void clear_general_descriptors();
  /// All of them, vector by vector.
  void dump_descriptors(std::ostream& os) const;

  /// As `DescriptorSet::_save_descriptors`.
  bool _save_descriptors(void* document, void* element) const;
  /// As `DescriptorSet::_parse_descriptors`.
  bool _parse_descriptors(void* node);
  /// Tells the visitor the list of descriptors, in the order of documents.
  void visit_descriptors(FieldVisitor& visitor) const;

#define SIVANE_ROW(tag, Class, getter, element) std::vector<Class> const& getter() const;
#include <sivane/descriptors/ait_descriptor_rows.inc>

 private:
  DescriptorGroups groups_;
};

}  // namespace sivane
