// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The "descriptors" element of an owner. The class of a descriptor goes by the name of its element; which
// names there are, and their order, stands in the rows of the sets.
#include <sivane/descriptors/ait_descriptor_set.h>
#include <sivane/descriptors/descriptor_set.h>
#include <sivane/descriptors/descriptor_storage.h>
#include <sivane/foundation/error.h>
#include <sivane/xml/archive.h>
#include <sivane/xml/node.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

namespace sivane {

using xml::Archive;

namespace {

struct ElementRow {
  std::u16string_view name;
  void (*load)(DescriptorGroups&, int row, void* node);
};

template <class Descriptor>
void load_into_row(DescriptorGroups& groups, int row, void* node) {
  Descriptor descriptor;
  descriptor.Parse(node);
  DescriptorStorage::append(groups, row, std::move(descriptor));
}

#define SIVANE_ELEMENT_ROW(tag, Class, getter, element) {u"" element, &load_into_row<Class>},
#define SIVANE_ROW SIVANE_ELEMENT_ROW
constexpr ElementRow rows[] = {
#include <sivane/descriptors/descriptor_rows.inc>
};
#define SIVANE_ROW SIVANE_ELEMENT_ROW
constexpr ElementRow ait_rows[] = {
#include <sivane/descriptors/ait_descriptor_rows.inc>
};

/// A descriptor that is refused half way stands in the tree with what it got; one that gets no element is
/// left out.
void save_list(DescriptorGroups const& groups, ElementRow const* element_rows, void* document, void* owner) {
  auto* const dom = static_cast<IXMLDOMDocument*>(document);
  CComPtr<IXMLDOMElement> const list = xml::create(dom, u"descriptors");
  if (!list) return;
  DescriptorStorage::each(groups, [&](int row, DescriptorBase const& descriptor) {
    CComPtr<IXMLDOMElement> const element = xml::create(dom, element_rows[row].name.data());
    if (!element) return;
    descriptor.SaveSection(document, element.get());
    list->appendChild(element.get(), nullptr);
  });
  if (owner != nullptr) static_cast<IXMLDOMNode*>(owner)->appendChild(list.get(), nullptr);
}

template <std::size_t count>
void load_element(DescriptorGroups& groups, ElementRow const (&element_rows)[count], IXMLDOMNode* element) {
  std::u16string const name = xml::node_name(element, "failed to get node name");
  auto const* const row = std::find_if(std::begin(element_rows), std::end(element_rows),
                                       [&name](ElementRow const& known) { return known.name == name; });
  if (row == std::end(element_rows)) return;
  row->load(groups, static_cast<int>(row - element_rows), element);
}

template <std::size_t count>
void load_list(DescriptorGroups& groups, ElementRow const (&element_rows)[count], void* owner) {
  CComPtr<IXMLDOMNode> const list =
      xml::select(static_cast<IXMLDOMNode*>(owner), u"descriptors", "failed to get descriptors node");
  xml::Children const children(
      list.get(), {"failed to get descriptors node list", "failed to get descriptors node list length",
                   "failed to get item"});
  for (long i = 0; i < children.count(); ++i) load_element(groups, element_rows, children.at(i).get());
}

void head(Archive& ar, DescriptorBase& d) {
  ar.attr(u"descriptor_id", d.tag, "failed to get descriptor_id");
  ar.attr(u"descriptor_length", d.length, "failed to get descriptor_length");
}

}  // namespace

bool DescriptorSet::_save_descriptors(void* document, void* element) const {
  save_list(groups_, rows, document, element);
  return true;
}

bool DescriptorSet::_parse_descriptors(void* node) {
  load_list(groups_, rows, node);
  return true;
}

bool AitDescriptorSet::_save_descriptors(void* document, void* element) const {
  save_list(groups_, ait_rows, document, element);
  return true;
}

bool AitDescriptorSet::_parse_descriptors(void* node) {
  load_list(groups_, ait_rows, node);
  return true;
}

bool DescriptorBase::SaveSection(void* document, void* element) const {
  return xml::save(*this, document, element, head) && _save_section(document, element);
}

void DescriptorBase::Parse(void* node) {
  Archive archive(node, "failed to get attribute map");
  head(archive, *this);
  _parse(node);
}

static void fields(Archive& ar, DescriptorGeneral& d) { ar.attr(u"private_data", d.data); }
SIVANE_XML(DescriptorGeneral)

}  // namespace sivane
