// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The "descriptors" element of an owner. The class of a descriptor goes by the name of its element; which
// names there are, and their order, stands in the rows of the sets.
#include <sivane/descriptors/ait_descriptor_set.h>
#include <sivane/descriptors/descriptor_set.h>
#include <sivane/descriptors/descriptor_storage.h>
#include <sivane/foundation/error.h>
#include <sivane/xml/node.h>

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

namespace sivane {

namespace {

using Name = std::u16string_view;

#define SIVANE_NAME(tag, Class, getter, element) Name(u"" element),
#define SIVANE_ROW SIVANE_NAME
constexpr Name names[] = {
#include <sivane/descriptors/descriptor_rows.inc>
};
#define SIVANE_ROW SIVANE_NAME
constexpr Name ait_names[] = {
#include <sivane/descriptors/ait_descriptor_rows.inc>
};

/// A descriptor that is refused half way stands in the tree with what it got; one that gets no element is
/// left out.
void save_list(DescriptorGroups const& groups, Name const* element_names, void* document, void* owner) {
  auto* const dom = static_cast<IXMLDOMDocument*>(document);
  CComPtr<IXMLDOMElement> const list = xml::create(dom, u"descriptors");
  if (!list) return;
  DescriptorStorage::each(groups, [&](int row, DescriptorBase const& descriptor) {
    CComPtr<IXMLDOMElement> const element = xml::create(dom, element_names[row].data());
    if (!element) return;
    descriptor.SaveSection(document, element.get());
    list->appendChild(element.get(), nullptr);
  });
  if (owner != nullptr) static_cast<IXMLDOMNode*>(owner)->appendChild(list.get(), nullptr);
}

void load_element(DescriptorGroups& groups, std::span<Name const> element_names, DescriptorRow const* rows,
                  IXMLDOMNode* element) {
  std::u16string const name = xml::node_name(element, "failed to get node name");
  auto const found = std::find(element_names.begin(), element_names.end(), name);
  if (found == element_names.end()) return;
  int const row = static_cast<int>(found - element_names.begin());
  rows[row].operations->load(DescriptorStorage::vector(groups, rows, row), element);
}

void load_list(DescriptorGroups& groups, std::span<Name const> element_names, DescriptorRow const* rows,
               void* owner) {
  CComPtr<IXMLDOMNode> const list =
      xml::select(static_cast<IXMLDOMNode*>(owner), u"descriptors", "failed to get descriptors node");
  xml::Children const children(
      list.get(), {"failed to get descriptors node list", "failed to get descriptors node list length",
                   "failed to get item"});
  for (long i = 0; i < children.count(); ++i) load_element(groups, element_names, rows, children.at(i).get());
}

}  // namespace

bool DescriptorSet::_save_descriptors(void* document, void* element) const {
  save_list(groups_, names, document, element);
  return true;
}

bool DescriptorSet::_parse_descriptors(void* node) {
  load_list(groups_, names, rows_of<DescriptorSet>(), node);
  return true;
}

bool AitDescriptorSet::_save_descriptors(void* document, void* element) const {
  save_list(groups_, ait_names, document, element);
  return true;
}

bool AitDescriptorSet::_parse_descriptors(void* node) {
  load_list(groups_, ait_names, rows_of<AitDescriptorSet>(), node);
  return true;
}

}  // namespace sivane
