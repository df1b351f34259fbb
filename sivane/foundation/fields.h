// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

namespace sivane {

class FieldList;
class FieldVisitor;

/// Declares what every record, entry and value `Class` has by its list of fields.
#define SIVANE_FIELDS(Class)                                                      \
  /** Tells the visitor every member. */                                          \
  void visit(FieldVisitor& visitor) const;                                        \
  /** Whether every member is equal. */                                           \
  bool operator==(Class const& other) const;                                      \
  /** The opposite. */                                                            \
  bool operator!=(Class const& other) const { return !(*this == other); }         \
  /** Internal: names the members, from which the forms of the class are made. */ \
  void _fields(FieldList& f);

}  // namespace sivane
