// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: the interfaces over a tree.
#pragma once

#include <sivane/dom/tree.h>
#include <sivane/xml/dom.h>

#include <memory>

namespace sivane::dom {

CComPtr<IXMLDOMDocument> document_node(std::shared_ptr<Tree> const& tree);
CComPtr<IXMLDOMElement> element_node(std::shared_ptr<Tree> tree, pugi::xml_node element);

}  // namespace sivane::dom
