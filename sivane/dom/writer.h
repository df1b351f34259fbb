// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: from a tree to the text of a document.
#pragma once

#include <sivane/dom/tree.h>

#include <string>

namespace sivane::dom {

constexpr char declaration[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

/// Whether elements of this tree stand deeper than they could be read, with so many levels above it.
bool is_too_deep(pugi::xml_node root, int levels_above);

/// The text of the document. Throws `error` unless it could be read again.
std::string write(Tree const& tree);

/// Appends the lines of the root alone, as they stand in a document with so many levels above it. Throws
/// `error` where there is no root, or where there are too many levels with those.
void append_root(std::string& text, Tree const& tree, int levels_above);

}  // namespace sivane::dom
