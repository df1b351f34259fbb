// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: from a tree to the text of a document.
#pragma once

#include <sivane/dom/nodes.h>

#include <string>

namespace sivane::dom {

constexpr char declaration[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

/// The text of the document. Throws `error` unless it could be read again.
std::string write(DocumentNode const& document);

/// Appends the lines of the root alone, as they stand in a document with so many levels above it. Throws
/// `error` where there is no root, or where there are too many levels with those.
void append_root(std::string& text, DocumentNode const& document, int levels_above);

}  // namespace sivane::dom
