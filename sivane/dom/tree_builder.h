// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: from what the parser meets to a tree.
#pragma once

#include <sivane/dom/nodes.h>
#include <sivane/dom/parser.h>

#include <string>
#include <string_view>

namespace sivane::dom {

/// Fills an empty tree.
class TreeBuilder final : public Content {
 public:
  explicit TreeBuilder(DocumentNode& document) : tree_(document.tree()), parent_(&document) {}

  void start(char const* name, char const** attributes) override;
  void end() override;
  void text(std::string_view piece) override { text_ += piece; }
  void comment(char const* text) override { add(Kind::comment, {}, text); }
  void instruction(char const* target, char const* data) override;

 private:
  void add(Kind kind, std::string_view name, std::string_view value);
  void add_leaf(Kind kind, std::string_view name, std::string_view value);
  void add_text();

  Tree& tree_;
  Branch* parent_;
  std::string text_;
};

/// Fills an empty document from its text. Throws `error`; its message begins with the line.
void read(std::string_view text, DocumentNode& document);

}  // namespace sivane::dom
