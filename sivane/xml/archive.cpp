// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/application_identifier.h>
#include <sivane/foundation/error.h>
#include <sivane/foundation/text.h>
#include <sivane/foundation/time.h>
#include <sivane/xml/archive.h>
#include <sivane/xml/attributes.h>
#include <sivane/xml/node.h>

namespace sivane::xml {

Archive::Archive(void* document, void* element)
    : ok_(document != nullptr && element != nullptr),
      document_(static_cast<IXMLDOMDocument*>(document)),
      element_(static_cast<IXMLDOMElement*>(element)) {}

Archive::Archive(void* node, char const* map_failure)
    : node_(static_cast<IXMLDOMNode*>(node)), map_(attributes(node_.get(), map_failure)) {}

Archive Archive::of_children(void* node) {
  Archive archive;
  archive.node_ = CComPtr<IXMLDOMNode>(static_cast<IXMLDOMNode*>(node));
  return archive;
}

template <class Value>
void Archive::transfer(char16_t const* name, Value& value, char const* failure) {
  if (saving()) {
    ok_ = ok_ && AddAttribute(document_.get(), element_.get(), name, value) >= 0;
  } else if (GetAttributeValue(map_.get(), name, value) < 0) {
    throw error(failure);
  }
}

template <class Value>
void Archive::transfer_text(char16_t const* name, Value& value, std::string (Value::*text)() const,
                            bool (Value::*set_from_text)(char const*)) {
  std::string written = (value.*text)();
  transfer(name, written);
  if (!saving()) (value.*set_from_text)(written.c_str());
}

void Archive::attr(char16_t const* name, int& v, char const* failure) { transfer(name, v, failure); }
void Archive::attr(char16_t const* name, unsigned long& v, char const* failure) {
  transfer(name, v, failure);
}
void Archive::attr(char16_t const* name, unsigned int& v) { transfer(name, v); }
void Archive::attr(char16_t const* name, unsigned char& v) { transfer(name, v); }
void Archive::attr(char16_t const* name, bool& v) { transfer(name, v); }
void Archive::attr(char16_t const* name, double& v) { transfer(name, v); }
void Archive::attr(char16_t const* name, std::string& v) { transfer(name, v); }
void Archive::attr(char16_t const* name, Text& v) { transfer(name, v); }
void Archive::attr(char16_t const* name, std::vector<unsigned char>& v) { transfer(name, v); }
void Archive::attr(char16_t const* name, std::vector<int>& v) { transfer(name, v); }
void Archive::attr(char16_t const* name, std::vector<unsigned long>& v) { transfer(name, v); }

void Archive::attr(char16_t const* name, char (&v)[4]) {
  if (saving()) {
    ok_ = ok_ && AddAttribute(document_.get(), element_.get(), name, static_cast<char const*>(v)) >= 0;
  } else if (GetAttributeValue(map_.get(), name, v, sizeof v) < 0) {
    throw error(failed);
  }
}

void Archive::attr(char16_t const* name, unsigned char (&v)[16]) {
  if (!ok_) return;
  long const result = saving() ? AddAttribute(document_.get(), element_.get(), name, v, sizeof v)
                               : GetAttributeValue(map_.get(), name, v, sizeof v);
  if (result < 0) throw error(failed);
}

void Archive::attr(char16_t const* name, DateTime& v) {
  transfer_text(name, v, &DateTime::get_date_as_text, &DateTime::set_date_from_text);
}

void Archive::attr(char16_t const* name, Duration& v) {
  transfer_text(name, v, &Duration::get_time_as_text, &Duration::set_time_from_text);
}

void Archive::attr(char16_t const* name, ApplicationIdentifier& v) {
  transfer_text(name, v, &ApplicationIdentifier::application_identifier_as_text,
                &ApplicationIdentifier::set_application_identifier_from_text);
}

void Archive::save_child(char16_t const* name, void (*save)(void*, void*, void*), void* record) {
  if (!ok_) return;
  CComPtr<IXMLDOMElement> const child = create(document_.get(), name);
  ok_ = false;
  if (!child) return;
  save(record, document_.get(), child.get());
  ok_ = element_->appendChild(child.get(), nullptr) >= 0;
}

CComPtr<IXMLDOMNode> Archive::child_node(char16_t const* name) {
  return select(node_.get(), name, ("failed to get " + narrow_name(name)).c_str());
}

void Archive::list(char16_t const* name, char16_t const* item, Records records) {
  if (saving()) {
    ok_ = ok_ && save_list(name, item, records);
    return;
  }
  std::string const list_name = narrow_name(name);
  CComPtr<IXMLDOMNode> const node = child_node(name);
  Children const children(
      node.get(), {"failed to get program_info list " + list_name, "failed to get length " + list_name,
                   "failed to get program_info node " + list_name});
  for (long i = 0; i < children.count(); ++i) records.load(records.vector, children.at(i).get());
}

bool Archive::save_list(char16_t const* name, char16_t const* item, Records records) {
  CComPtr<IXMLDOMElement> const list_element = create(document_.get(), name);
  if (!list_element) return false;
  for (std::size_t i = 0; i < records.size; ++i) {
    CComPtr<IXMLDOMElement> const element = create(document_.get(), item);
    if (!element) return false;
    records.save(records.vector, i, document_.get(), element.get());
    if (list_element->appendChild(element.get(), nullptr) < 0) return false;
  }
  return element_->appendChild(list_element.get(), nullptr) >= 0;
}

void Archive::entries(char16_t const* name, char16_t const* item, Records records) {
  if (saving()) {
    ok_ = ok_ && save_entries(name, item, records);
    return;
  }
  // The words are the same for every table, whatever its list is called.
  Children const children(
      select(node_.get(), name, "failed to get program_infos node").get(),
      {"failed to get program_info list", "failed to get length", "failed to get program_info node"});
  for (long i = 0; i < children.count(); ++i) records.load(records.vector, children.at(i).get());
}

bool Archive::save_entries(char16_t const* name, char16_t const* item, Records records) {
  CComPtr<IXMLDOMNode> const list_node = append(element_.get(), create(document_.get(), name));
  if (!list_node) return false;
  for (std::size_t i = 0; i < records.size; ++i) {
    CComPtr<IXMLDOMElement> const element =
        element_view(append(list_node.get(), create(document_.get(), item)));
    if (!element) return false;
    if (!records.save(records.vector, i, document_.get(), element.get())) return false;
  }
  return true;
}

}  // namespace sivane::xml
