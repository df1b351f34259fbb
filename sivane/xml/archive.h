// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: an object's way into a document's element and back. Each class has one function
// `fields(Archive&, Class&)` that names its attributes and children in the order of the document; the archive
// knows the direction, so that saving and loading cannot differ.
#pragma once

#include <sivane/xml/dom.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace sivane {

class ApplicationIdentifier;
class DateTime;
class Duration;
class Text;

/// Entries of most tables save and load themselves.
template <class Entry>
bool save_entry(Entry const& entry, void* document, void* element) {
  return entry._save_stream_info(document, element);
}
template <class Entry>
void load_entry(std::vector<Entry>& entries, void* node) {
  entries.emplace_back(node);
}

namespace xml {

/// What is thrown where no other words are laid down.
inline constexpr char const* failed = "failed";

class Archive {
 public:
  /// Saves. The first refusal of the document makes everything after it do nothing, and `ok` false.
  Archive(void* document, void* element);
  /// Loads. Throws `map_failure` where the node has no attributes to ask for.
  explicit Archive(void* node, char const* map_failure = failed);
  /// Loads an object that has children alone: its attributes are not asked for.
  static Archive of_children(void* node);

  bool ok() const { return ok_; }

  // An attribute of each form. Loading throws `failure` where it is missing.
  void attr(char16_t const* name, int& value, char const* failure = failed);
  void attr(char16_t const* name, unsigned int& value);
  void attr(char16_t const* name, unsigned long& value, char const* failure = failed);
  void attr(char16_t const* name, unsigned char& value);
  void attr(char16_t const* name, bool& value);
  void attr(char16_t const* name, double& value);
  void attr(char16_t const* name, std::string& value);
  void attr(char16_t const* name, Text& value);
  void attr(char16_t const* name, std::vector<unsigned char>& value);
  void attr(char16_t const* name, std::vector<int>& value);
  void attr(char16_t const* name, std::vector<unsigned long>& value);
  /// A code of three letters.
  void attr(char16_t const* name, char (&value)[4]);
  /// Sixteen bytes; the one form of which a refused save is thrown, as "failed".
  void attr(char16_t const* name, unsigned char (&value)[16]);
  // Values by their text.
  void attr(char16_t const* name, DateTime& value);
  void attr(char16_t const* name, Duration& value);
  void attr(char16_t const* name, ApplicationIdentifier& value);
  /// No such form in the documents.
  template <class Value>
  void attr(char16_t const* name, Value& value) = delete;

  /// The records of a descriptor or record: an element `name` with an element `item` for each. What a record
  /// refuses to save stays out of its item and stops nothing.
  template <class Record>
  void list(char16_t const* name, char16_t const* item, std::vector<Record>& records) {
    list(name, item,
         {&records, records.size(),
          [](void* all, std::size_t index, void* document, void* element) {
            return (*static_cast<std::vector<Record>*>(all))[index].SaveSection(document, element);
          },
          [](void* all, void* node) {
            Record record;
            record.Parse(node);
            static_cast<std::vector<Record>*>(all)->push_back(std::move(record));
          }});
  }

  /// One record, in an element `name`.
  template <class Record>
  void child(char16_t const* name, Record& record) {
    if (saving()) {
      save_child(
          name,
          [](void* value, void* document, void* element) {
            static_cast<Record*>(value)->SaveSection(document, element);
          },
          &record);
    } else {
      Record loaded;
      loaded.Parse(child_node(name).get());
      record = std::move(loaded);
    }
  }

  /// The entries of a table: an element `name` with an element `item` for each. The list is in the tree
  /// before it is filled, each item too, and an entry that is refused ends the saving.
  template <class Entry>
  void entries(char16_t const* name, char16_t const* item, std::vector<Entry>& all) {
    entries(name, item,
            {&all, all.size(),
             [](void* vector, std::size_t index, void* document, void* element) {
               return save_entry((*static_cast<std::vector<Entry>*>(vector))[index], document, element);
             },
             [](void* vector, void* node) { load_entry(*static_cast<std::vector<Entry>*>(vector), node); }});
  }

  /// The descriptors of a table or entry.
  template <class Set>
  void descriptors(Set& set) {
    if (!saving()) {
      set._parse_descriptors(node_.get());
    } else if (ok_) {
      ok_ = set._save_descriptors(document_.get(), static_cast<IXMLDOMNode*>(element_.get()));
    }
  }

 private:
  /// A vector without the type of what it holds.
  struct Records {
    void* vector;
    std::size_t size;
    bool (*save)(void* vector, std::size_t index, void* document, void* element);
    void (*load)(void* vector, void* node);  // appends one
  };

  Archive() = default;
  bool saving() const { return !node_; }
  template <class Value>
  void transfer(char16_t const* name, Value& value, char const* failure = failed);
  template <class Value>
  void transfer_text(char16_t const* name, Value& value, std::string (Value::*text)() const,
                     bool (Value::*set_from_text)(char const*));

  void list(char16_t const* name, char16_t const* item, Records records);
  void entries(char16_t const* name, char16_t const* item, Records records);
  bool save_list(char16_t const* name, char16_t const* item, Records records);
  bool save_entries(char16_t const* name, char16_t const* item, Records records);
  void save_child(char16_t const* name, void (*save)(void*, void*, void*), void* record);
  CComPtr<IXMLDOMNode> child_node(char16_t const* name);

  bool ok_ = true;
  CComPtr<IXMLDOMDocument> document_;  // when saving
  CComPtr<IXMLDOMElement> element_;
  CComPtr<IXMLDOMNode> node_;  // when loading
  CComPtr<IXMLDOMNamedNodeMap> map_;
};

/// Saves the fields that `name_fields` names to the archive.
template <class Object, class NameFields>
bool save(Object const& object, void* document, void* element, NameFields name_fields) {
  Archive archive(document, element);
  name_fields(archive, const_cast<Object&>(object));  // which an archive that saves does not change
  return archive.ok();
}

template <class Object>
bool save(Object const& object, void* document, void* element) {
  return save(object, document, element, [](Archive& archive, Object& same) { fields(archive, same); });
}

template <class Object>
void load(Object& object, void* node) {
  Archive archive(node);
  fields(archive, object);
}

template <class Object>
void load_children(Object& object, void* node) {
  Archive archive = Archive::of_children(node);
  fields(archive, object);
}

/// The bodies by which a table or descriptor saves and loads what its class adds.
#define SIVANE_XML(Class)                                          \
  bool Class::_save_section(void* document, void* element) const { \
    return xml::save(*this, document, element);                    \
  }                                                                \
  void Class::_parse(void* node) { xml::load(*this, node); }

/// The same of a record or value.
#define SIVANE_XML_RECORD(Class)                                 \
  bool Class::SaveSection(void* document, void* element) const { \
    return xml::save(*this, document, element);                  \
  }                                                              \
  void Class::Parse(void* node) { xml::load(*this, node); }

}  // namespace xml
}  // namespace sivane
