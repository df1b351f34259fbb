// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Loading: an object's fields from the attributes and children of an element. What a document states is taken
// over: no check of a section runs on it.
#include <sivane/descriptors/descriptor.h>
#include <sivane/fields/field_list.h>
#include <sivane/foundation/error.h>
#include <sivane/tables/section.h>
#include <sivane/xml/attributes.h>
#include <sivane/xml/node.h>

namespace sivane {

namespace {

constexpr char const* no_attributes = "failed to get attribute map";

/// Fetches each form of a member; negative where it is missing, and then the member stays as it was.
class GetValue {
 public:
  GetValue(IXMLDOMNamedNodeMap* map, char16_t const* name) : map_(map), name_(name) {}

  template <class Value>
  long operator()(Value* v) const {
    return GetAttributeValue(map_, name_, *v);
  }
  template <class Character, std::size_t size>
  long operator()(Character (*v)[size]) const {
    return GetAttributeValue(map_, name_, *v, static_cast<int>(size));
  }
  long operator()(BroadcastString v) const { return (*this)(v.string); }
  long operator()(DateTime* v) const { return get_text(*v, &DateTime::set_date_from_text); }
  long operator()(Duration* v) const { return get_text(*v, &Duration::set_time_from_text); }
  long operator()(ApplicationIdentifier* v) const {
    return get_text(*v, &ApplicationIdentifier::set_application_identifier_from_text);
  }
  long operator()(std::vector<std::string>*) const { return E_FAIL; }  // documents have no form for it

 private:
  template <class Value>
  long get_text(Value& value, bool (Value::*set_from_text)(char const*)) const {
    std::string text;
    long const result = GetAttributeValue(map_, name_, text);
    if (result >= 0) (value.*set_from_text)(text.c_str());
    return result;
  }

  IXMLDOMNamedNodeMap* map_;
  char16_t const* name_;
};

class Loader final : public FieldList {
 public:
  /// When the node is asked for its attributes.
  enum class Asks { at_first_field, at_first_attribute };

  explicit Loader(void* node, char const* failure = failed, Asks asks = Asks::at_first_field)
      : node_(static_cast<IXMLDOMNode*>(node)), failure_(failure), asks_(asks) {}

  void descriptors(DescriptorSet& set) override { load_descriptors(set); }
  void descriptors(AitDescriptorSet& set) override { load_descriptors(set); }

 private:
  void value(FieldName const& name, FieldValue value, char const* failure) override {
    if (name.document == nullptr) return at_field();
    ask();
    if (std::visit(GetValue(map_.get(), name.document), value) < 0) throw error(failure);
  }

  void record_list(FieldName const& name, char16_t const*, AnyRecords records) override {
    if (name.document == nullptr) return;
    at_field();
    std::string const list = xml::narrow_name(name.document);
    load_items(child(name), records, failed,
               {"failed to get program_info list " + list, "failed to get length " + list,
                "failed to get program_info node " + list});
  }

  void entry_list(FieldName const& name, char16_t const*, AnyRecords entries, char const* failure) override {
    at_field();
    // The words are the same for every table, whatever its list is called.
    load_items(
        xml::select(node_.get(), name.document, "failed to get program_infos node"), entries, failure,
        {"failed to get program_info list", "failed to get length", "failed to get program_info node"});
  }

  void record_child(FieldName const& name, AnyRecord record) override {
    at_field();
    Loader loader(child(name).get());
    record.load(record.object, loader);
  }

  static void load_items(CComPtr<IXMLDOMNode> const& list, AnyRecords records, char const* failure,
                         xml::Children::Failures failures) {
    xml::Children const children(list.get(), std::move(failures));
    for (long i = 0; i < children.count(); ++i) {
      CComPtr<IXMLDOMNode> const item = children.at(i);
      Loader loader(item.get(), failure);
      records.append(records.vector, loader);
    }
  }

  template <class Set>
  void load_descriptors(Set& set) {
    at_field();
    set._parse_descriptors(node_.get());
  }

  CComPtr<IXMLDOMNode> child(FieldName const& name) {
    return xml::select(node_.get(), name.document,
                       ("failed to get " + xml::narrow_name(name.document)).c_str());
  }

  void at_field() {
    if (asks_ == Asks::at_first_field) ask();
  }
  void ask() {
    if (!map_) map_ = xml::attributes(node_.get(), failure_);
  }

  CComPtr<IXMLDOMNode> node_;
  CComPtr<IXMLDOMNamedNodeMap> map_;
  char const* failure_;
  Asks asks_;
};

template <class Base>
void load_head(Base& object, void* node) {
  Loader loader(node, no_attributes);
  object._head_fields(loader);
}

template <class Frame>
void load_section(Frame& table, void* node) {
  load_head(table, node);
  table._parse(node);
  table.valid = true;
}

}  // namespace

void load_fields(AnyObject object, void* node) {
  Loader loader(node);
  object.fields(object.object, loader);
}

// A table whose fields are all children does not ask for its attributes again.
void PsiTableBase::_parse(void* node) {
  Loader loader(node, failed, Loader::Asks::at_first_attribute);
  _fields(loader);
}
void PsiBase::_parse(void* node) {
  Loader loader(node, failed, Loader::Asks::at_first_attribute);
  _fields(loader);
}
void DescriptorBase::_parse(void* node) { load_fields(AnyObject(*this), node); }

void PsiTableBase::Parse(void* node) { load_section(*this, node); }
void PsiBase::Parse(void* node) { load_section(*this, node); }
void DescriptorBase::Parse(void* node) {
  load_head(*this, node);
  _parse(node);
}

}  // namespace sivane
