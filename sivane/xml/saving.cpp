// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Saving: an object's fields as attributes and children of an element.
#include <sivane/descriptors/descriptor.h>
#include <sivane/fields/field_list.h>
#include <sivane/foundation/error.h>
#include <sivane/tables/section.h>
#include <sivane/xml/attributes.h>
#include <sivane/xml/node.h>

namespace sivane {

namespace {

/// Puts each form of a member on the element; negative where the document refuses.
class AddValue {
 public:
  AddValue(IXMLDOMDocument* document, IXMLDOMElement* element, char16_t const* name)
      : document_(document), element_(element), name_(name) {}

  template <class Value>
  long operator()(Value const* v) const {
    return AddAttribute(document_, element_, name_, *v);
  }
  long operator()(char const (*v)[4]) const {
    return AddAttribute(document_, element_, name_, static_cast<char const*>(*v));
  }
  /// The one form of which a refusal is thrown.
  long operator()(unsigned char const (*v)[16]) const {
    if (AddAttribute(document_, element_, name_, *v, sizeof *v) < 0) throw error(failed);
    return 0;
  }
  long operator()(BroadcastString v) const { return (*this)(v.string); }
  long operator()(DateTime const* v) const { return add_text(v->get_date_as_text()); }
  long operator()(Duration const* v) const { return add_text(v->get_time_as_text()); }
  long operator()(ApplicationIdentifier const* v) const {
    return add_text(v->application_identifier_as_text());
  }
  long operator()(std::vector<std::string> const*) const { return E_FAIL; }  // documents have no form for it

 private:
  long add_text(std::string const& text) const { return AddAttribute(document_, element_, name_, text); }

  IXMLDOMDocument* document_;
  IXMLDOMElement* element_;
  char16_t const* name_;
};

/// The first refusal of the document makes everything after it do nothing.
class Saver final : public FieldList {
 public:
  Saver(void* document, void* element)
      : ok_(document != nullptr && element != nullptr),
        document_(static_cast<IXMLDOMDocument*>(document)),
        element_(static_cast<IXMLDOMElement*>(element)) {}

  bool ok() const { return ok_; }

  void descriptors(DescriptorSet& set) override { save_descriptors(set); }
  void descriptors(AitDescriptorSet& set) override { save_descriptors(set); }

 private:
  void value(FieldName const& name, FieldValue value, char const*) override {
    if (name.document == nullptr || !ok_) return;
    ok_ = std::visit(AddValue(document_.get(), element_.get(), name.document), value) >= 0;
  }

  /// What a record refuses to save stays out of its item and stops nothing.
  void record_list(FieldName const& name, char16_t const* item, AnyRecords records) override {
    if (name.document != nullptr) ok_ = ok_ && save_list(name.document, item, records);
  }

  /// The list is in the tree before it is filled, each item too, and an entry that is refused ends the
  /// saving.
  void entry_list(FieldName const& name, char16_t const* item, AnyRecords entries, char const*) override {
    ok_ = ok_ && save_entries(name.document, item, entries);
  }

  void record_child(FieldName const& name, AnyRecord record) override {
    ok_ = ok_ && save_child(name.document, record);
  }

  bool save_list(char16_t const* name, char16_t const* item, AnyRecords records) {
    CComPtr<IXMLDOMElement> const list = xml::create(document_.get(), name);
    if (!list) return false;
    for (std::size_t i = 0; i < records.size; ++i) {
      CComPtr<IXMLDOMElement> const element = xml::create(document_.get(), item);
      if (!element) return false;
      save_fields(records.at(records.vector, i), document_.get(), element.get());
      if (list->appendChild(element.get(), nullptr) < 0) return false;
    }
    return element_->appendChild(list.get(), nullptr) >= 0;
  }

  bool save_entries(char16_t const* name, char16_t const* item, AnyRecords entries) {
    CComPtr<IXMLDOMNode> const list = xml::append(element_.get(), xml::create(document_.get(), name));
    if (!list) return false;
    for (std::size_t i = 0; i < entries.size; ++i) {
      CComPtr<IXMLDOMElement> const element =
          xml::element_view(xml::append(list.get(), xml::create(document_.get(), item)));
      if (!element) return false;
      if (!save_fields(entries.at(entries.vector, i), document_.get(), element.get())) return false;
    }
    return true;
  }

  bool save_child(char16_t const* name, AnyObject record) {
    CComPtr<IXMLDOMElement> const child = xml::create(document_.get(), name);
    if (!child) return false;
    save_fields(record, document_.get(), child.get());
    return element_->appendChild(child.get(), nullptr) >= 0;
  }

  template <class Set>
  void save_descriptors(Set& set) {
    ok_ = ok_ && set._save_descriptors(document_.get(), static_cast<IXMLDOMNode*>(element_.get()));
  }

  bool ok_;
  CComPtr<IXMLDOMDocument> document_;
  CComPtr<IXMLDOMElement> element_;
};

/// The fields that every object of `Base` begins with.
template <class Base>
bool save_head(Base const& object, void* document, void* element) {
  AnyObject const head(const_cast<Base*>(&object),
                       [](void* self, FieldList& f) { static_cast<Base*>(self)->_head_fields(f); });
  return save_fields(head, document, element);
}

}  // namespace

bool save_fields(AnyObject object, void* document, void* element) {
  Saver saver(document, element);
  object.fields(object.object, saver);
  return saver.ok();
}

bool PsiTableBase::_save_section(void* document, void* element) const {
  return save_fields(AnyObject(*this), document, element);
}
bool PsiBase::_save_section(void* document, void* element) const {
  return save_fields(AnyObject(*this), document, element);
}
bool DescriptorBase::_save_section(void* document, void* element) const {
  return save_fields(AnyObject(*this), document, element);
}

bool PsiTableBase::SaveSection(void* document, void* element) const {
  return save_head(*this, document, element) && _save_section(document, element);
}
bool PsiBase::SaveSection(void* document, void* element) const {
  return save_head(*this, document, element) && _save_section(document, element);
}
bool DescriptorBase::SaveSection(void* document, void* element) const {
  return save_head(*this, document, element) && _save_section(document, element);
}

}  // namespace sivane
