// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/descriptors/cell.h>
#include <sivane/descriptors/descriptor.h>
#include <sivane/descriptors/descriptor_groups.h>
#include <sivane/descriptors/event.h>
#include <sivane/descriptors/mosiac.h>
#include <sivane/descriptors/mpeg_systems.h>
#include <sivane/descriptors/network.h>
#include <sivane/descriptors/service.h>
#include <sivane/descriptors/stream.h>
#include <sivane/foundation/export.h>
#include <sivane/foundation/reader.h>

#include <vector>

namespace sivane {

/// Descriptors filed by tag: one vector for each class, one for the other tags below 0x80 and one for those
/// from 0x80 on. Which classes there are, and under which getters, is in descriptor_rows.inc.
///
/// Order within a vector is order of appearance; a repeated tag gives a further element. Only what was filed
/// is paid for: an empty set is one null pointer. A class that owns descriptors derives from this one.
class SIVANE_API DescriptorSet {
 public:
  /// Builds the class of the descriptor's tag and appends it to its vector. A descriptor that throws is not
  /// filed; those before it stay.
  void ParseDescriptor(DescriptorBytes descriptor);
  /// The same within a loop of the caller's: one that has no class remembers the private_data_specifier in
  /// force
  /// (`DescriptorLoop::private_data_specifier`).
  void ParseDescriptor(DescriptorBytes descriptor, unsigned int private_data_specifier);
  /// Appends it with its bytes, whatever its tag: to the user private descriptors from 0x80 on, to the
  /// general ones below.
  void file_as_bytes(DescriptorBytes descriptor);
  /// The same, and remembers the private_data_specifier in force.
  void file_as_bytes(DescriptorBytes descriptor, unsigned int private_data_specifier);
  /// Files the descriptors that start within the next `size` bytes of `reader`, and steps over those bytes.
  /// Throws `failure` where one would leave the section, or, if the loop's end is `exact`, the bytes.
  void parse_descriptors(Reader& reader, int size, Failure failure, LoopEnd end = LoopEnd::open);
  /// Empties every vector.
  void clear_descriptors() { groups_ = {}; }
  /// Empties the vector of `get_general_descriptors`.
  void clear_general_descriptors();

  /// Adds an element "descriptors" with an element for each descriptor to the owner's element. Always true:
  /// what the document refuses is left out.
  bool _save_descriptors(void* document, void* element) const;
  /// Files what the "descriptors" element of the owner's element holds; elements of unknown names are
  /// skipped. Throws `error` where it is missing, and what the descriptors throw.
  bool _parse_descriptors(void* node);
  /// Tells the visitor the list of descriptors, in the order of documents.
  void visit_descriptors(FieldVisitor& visitor) const;

  // The vectors: `get_CA_descriptors()`, `get_short_event_descriptors()` and so on; empty where none was
  // filed. A reference is good until the set changes.
#define SIVANE_ROW(tag, Class, getter, element) std::vector<Class> const& getter() const;
#include <sivane/descriptors/descriptor_rows.inc>

 private:
  DescriptorGroups groups_;
};

}  // namespace sivane
