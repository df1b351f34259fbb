// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/export.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace sivane {

class DateTime;
class DescriptorBase;
class Duration;
class FieldList;
class FieldVisitor;

/// What is known of a field beside its value.
struct Field {
  std::string_view name;    ///< in documents; of what they do not carry the member's, of a list's items empty
  std::string_view member;  ///< in the C++ class
  int bits = 0;             ///< how wide a number or flag is in the section; 0 for every other kind
  bool in_documents = true;  ///< whether documents carry it
};

/// An entry or record that a visit has come to, without its class. It may be kept, and is good as long as the
/// object that holds it stays as it is.
class SIVANE_API FieldHolder {
 public:
  /// Tells the visitor every member.
  void visit(FieldVisitor& visitor) const;

  /// Internal: of an object whose fields `fields` names.
  FieldHolder(void* object, void (*fields)(void* object, FieldList& list))
      : object_(object), fields_(fields) {}

 private:
  void* object_;
  void (*fields_)(void* object, FieldList& list);
};

/// Is told what a table, entry, descriptor or record holds, in the order of the documents: derive from it,
/// override what you want to know, and give it to the object's `visit`. What is not overridden is passed
/// over. Views and pointers are good during the call. What an override throws ends the visit.
class SIVANE_API FieldVisitor {
 public:
  /// An integer. (Documents hold its low 32 bits, signed.)
  virtual void number(Field const& field, std::int64_t value);
  virtual void real(Field const& field, double value);  ///< a number with a fraction
  virtual void flag(Field const& field, bool value);    ///< one bit
  /// A text for people (ETSI EN 300 468, Annex A), with the selector of its character table in front.
  virtual void text(Field const& field, std::string_view bytes);
  /// A string for programs: a path, a class, digits.
  virtual void string(Field const& field, std::string_view value);
  /// Three letters of a language or country.
  virtual void code(Field const& field, std::string_view letters);
  /// Bytes without a meaning to the library.
  virtual void bytes(Field const& field, unsigned char const* data, std::size_t size);
  virtual void date(Field const& field, DateTime const& value);      ///< UTC
  virtual void duration(Field const& field, Duration const& value);  ///< hours, minutes and seconds

  /// The member whose field alone it is told; empty for all.
  std::string_view only_member() const { return only_member_; }

  /// Whether a list is told at all, to spare the walk through one that nobody asked for. Unless overridden:
  /// yes.
  virtual bool wants_list(Field const& field);
  /// A list of `size` items, which follow until `end_list`: numbers, strings, records or descriptors.
  virtual void begin_list(Field const& field, std::size_t size);
  virtual void end_list();  ///< of the list begun last
  /// An entry or record, whose fields follow until `end_record`.
  virtual void begin_record(Field const& field);
  virtual void end_record();  ///< of the record begun last
  /// A descriptor, which `element` names in documents; tag, length and its fields follow until
  /// `end_descriptor`.
  virtual void begin_descriptor(std::string_view element, DescriptorBase const& descriptor);
  virtual void end_descriptor();  ///< of the descriptor begun last

  /// An entry or record as a whole, for who does not want to be told all that is within. Unless overridden:
  /// `begin_record`, its fields, `end_record`.
  virtual void record(Field const& field, FieldHolder const& record);
  /// The same of a descriptor.
  virtual void descriptor(std::string_view element, DescriptorBase const& descriptor);

 protected:
  FieldVisitor() = default;
  /// For the field of this member alone, which is found sooner than among all. A list of this name is told,
  /// and of the records in it again what has the name: such a visitor overrides `record` and `descriptor`.
  /// The name must outlive the visitor.
  explicit FieldVisitor(std::string_view member) : only_member_(member) {}
  FieldVisitor(FieldVisitor const&) = default;
  FieldVisitor& operator=(FieldVisitor const&) = default;
  ~FieldVisitor() = default;

 private:
  std::string_view only_member_;
};

}  // namespace sivane
