// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: what names the fields of a class. Each class has one function `_fields(FieldList&)`, which adds
// its members in the order of the documents; who saves, loads or visits an object derives from FieldList and
// is handed them one by one. There is no second list of them anywhere.
#pragma once

#include <sivane/descriptors/ait_descriptor_set.h>
#include <sivane/descriptors/descriptor_set.h>
#include <sivane/fields/field_visitor.h>
#include <sivane/foundation/application_identifier.h>
#include <sivane/foundation/text.h>
#include <sivane/foundation/time.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace sivane {

/// What is thrown where no other words are laid down.
inline constexpr char const* failed = "failed";

struct FieldName {
  char16_t const* document;  // null where documents do not carry it
  Field field;
};

/// A member and its name, which documents have too.
#define FIELD(member) ::sivane::FieldName{u"" #member, {#member, #member}}, member
/// A member that has another name in documents.
#define FIELD_AS(document_name, member) \
  ::sivane::FieldName{u"" document_name, {document_name, #member}}, member
/// A member that documents do not carry.
#define UNSAVED(member) ::sivane::FieldName{nullptr, {#member, #member, 0, false}}, member

/// A string for people, as it came.
struct BroadcastString {
  std::string* string;
};

/// A member, whatever its form.
using FieldValue =
    std::variant<int*, unsigned int*, unsigned long*, unsigned char*, bool*, double*, std::string*,
                 BroadcastString, Text*, std::vector<unsigned char>*, std::vector<int>*,
                 std::vector<unsigned long>*, std::vector<std::string>*, char (*)[4], unsigned char (*)[16],
                 DateTime*, Duration*, ApplicationIdentifier*>;

class FieldList;

/// An object without its class. Only loading changes it.
struct AnyObject {
  template <class Object>
  explicit AnyObject(Object const& of)
      : object(const_cast<Object*>(&of)),
        fields([](void* self, FieldList& list) { static_cast<Object*>(self)->_fields(list); }) {}
  AnyObject(void* of, void (*name_fields)(void*, FieldList&)) : object(of), fields(name_fields) {}

  void* object;
  void (*fields)(void* object, FieldList& list);
};

/// A record that an object holds as one of its members.
struct AnyRecord : AnyObject {
  template <class Record>
  explicit AnyRecord(Record& record)
      : AnyObject(record), load([](void* self, FieldList& loader) {
          Record fresh;
          fresh._fields(loader);
          *static_cast<Record*>(self) = std::move(fresh);
        }) {}

  void (*load)(void* object, FieldList& loader);
};

/// A vector of records or entries without their class.
struct AnyRecords {
  template <class Record>
  explicit AnyRecords(std::vector<Record>& records)
      : vector(&records),
        size(records.size()),
        at([](void* all, std::size_t index) {
          return AnyObject((*static_cast<std::vector<Record>*>(all))[index]);
        }),
        append([](void* all, FieldList& loader) {
          Record record;
          record._fields(loader);
          static_cast<std::vector<Record>*>(all)->push_back(std::move(record));
        }) {}

  void* vector;
  std::size_t size;
  AnyObject (*at)(void* vector, std::size_t index);
  void (*append)(void* vector, FieldList& loader);
};

class FieldList {
 public:
  // A member of each form; numbers with their bits in the section. Loading throws `failure` where it is
  // missing.
  void add(FieldName name, int& v, int bits, char const* failure = failed) {
    number(name, &v, bits, failure);
  }
  void add(FieldName name, unsigned int& v, int bits) { number(name, &v, bits, failed); }
  void add(FieldName name, unsigned long& v, int bits, char const* failure = failed) {
    number(name, &v, bits, failure);
  }
  void add(FieldName name, unsigned char& v, int bits) { number(name, &v, bits, failed); }
  void add(FieldName name, bool& v) { number(name, &v, 1, failed); }
  void add(FieldName name, double& v) { tell(name, &v, failed); }
  void add(FieldName name, std::vector<int>& v, int bits) { number(name, &v, bits, failed); }
  void add(FieldName name, std::vector<unsigned long>& v, int bits) { number(name, &v, bits, failed); }
  void add(FieldName name, std::vector<unsigned char>& v) { tell(name, &v, failed); }
  void add(FieldName name, std::vector<std::string>& v) { tell(name, &v, failed); }
  void add(FieldName name, Text& v) { tell(name, &v, failed); }
  /// A string for programs.
  void add(FieldName name, std::string& v) { tell(name, &v, failed); }
  /// A string for people, as it came.
  void text(FieldName name, std::string& v) { tell(name, BroadcastString{&v}, failed); }
  /// A code of three letters.
  void add(FieldName name, char (&v)[4]) { tell(name, &v, failed); }
  void add(FieldName name, unsigned char (&v)[16]) { tell(name, &v, failed); }
  void add(FieldName name, DateTime& v) { tell(name, &v, failed); }
  void add(FieldName name, Duration& v) { tell(name, &v, failed); }
  void add(FieldName name, ApplicationIdentifier& v) { tell(name, &v, failed); }
  /// No such form in the documents.
  template <class Value>
  void add(FieldName name, Value& value) = delete;

  /// The records of a descriptor or record; `item` is the element of one.
  template <class Record>
  void list(FieldName name, Record& records, char16_t const* item) {
    if (has(name.field.member)) record_list(name, item, AnyRecords(records));
  }
  /// The entries of a table. `failure` is thrown where one has no attributes.
  template <class Entry>
  void entries(FieldName name, std::vector<Entry>& all, char16_t const* item, char const* failure = failed) {
    if (has(name.field.member)) entry_list(name, item, AnyRecords(all), failure);
  }
  /// One record, in an element of its own.
  template <class Record>
  void child(FieldName name, Record& record) {
    if (has(name.field.member)) record_child(name, AnyRecord(record));
  }
  void child(FieldName name, DateTime& date) {
    if (has(name.field.member)) date_child(name, date);
  }

  /// The descriptors of a table or entry.
  virtual void descriptors(DescriptorSet& set) = 0;
  virtual void descriptors(AitDescriptorSet& set) = 0;

 protected:
  /// Of all members, or only of this one: the others are passed over here, where their names are constants.
  explicit FieldList(std::string_view only_member = {}) : only_member_(only_member) {}
  FieldList(FieldList const&) = delete;
  FieldList& operator=(FieldList const&) = delete;
  ~FieldList() = default;

  /// Whether a member is one that is asked for.
  bool has(std::string_view member) const { return only_member_.empty() || member == only_member_; }

 private:
  virtual void value(FieldName const& name, FieldValue value, char const* failure) = 0;
  virtual void record_list(FieldName const& name, char16_t const* item, AnyRecords records) = 0;
  virtual void entry_list(FieldName const& name, char16_t const* item, AnyRecords entries,
                          char const* failure) = 0;
  virtual void record_child(FieldName const& name, AnyRecord record) = 0;
  virtual void date_child(FieldName const& name, DateTime& date) { record_child(name, AnyRecord(date)); }

  void number(FieldName& name, FieldValue v, int bits, char const* failure) {
    name.field.bits = bits;
    tell(name, v, failure);
  }
  void tell(FieldName const& name, FieldValue v, char const* failure) {
    if (has(name.field.member)) value(name, v, failure);
  }

  std::string_view only_member_;
};

// What is done with an object's fields. Saving and loading, with a document's nodes as `void*`, are in
// sivane/xml.

/// False once the document refuses.
bool save_fields(AnyObject object, void* document, void* element);
/// Throws "failed" where the node has no attributes, and what the fields throw.
void load_fields(AnyObject object, void* node);
void visit_fields(AnyObject object, FieldVisitor& visitor);
bool same_fields(AnyObject one, AnyObject other);

/// What every record has, and its list of fields, which follows in braces.
#define RECORD_FIELDS(Class)                                             \
  void Class::Parse(void* node) { load_fields(AnyObject(*this), node); } \
  bool Class::SaveSection(void* document, void* element) const {         \
    return save_fields(AnyObject(*this), document, element);             \
  }                                                                      \
  ENTRY_FIELDS(Class)

/// What every entry of a table that has no other operations has, and its list of fields.
#define ENTRY_FIELDS(Class)                                                                   \
  void Class::visit(FieldVisitor& visitor) const { visit_fields(AnyObject(*this), visitor); } \
  bool Class::operator==(Class const& other) const {                                          \
    return same_fields(AnyObject(*this), AnyObject(other));                                   \
  }                                                                                           \
  void Class::_fields(FieldList& f)

/// What every entry of a table has that saves and loads itself, and its list of fields.
#define STORED_ENTRY_FIELDS(Class, constructor)                           \
  Class::constructor(void* node) { load_fields(AnyObject(*this), node); } \
  bool Class::_save_stream_info(void* document, void* element) const {    \
    return save_fields(AnyObject(*this), document, element);              \
  }                                                                       \
  ENTRY_FIELDS(Class)

}  // namespace sivane
