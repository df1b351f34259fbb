// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: from what the parser meets to a tree.
#pragma once

#include <sivane/dom/parser.h>
#include <sivane/dom/tree.h>

#include <string>

namespace sivane::dom {

/// Fills an empty tree.
class TreeBuilder final : public Content {
 public:
  explicit TreeBuilder(Tree& tree) : parent_(tree.document) {}

  void start(char const* name, char const** attributes) override;
  void end() override;
  void text(std::string_view piece) override { text_ += piece; }
  void comment(char const* text) override { add(pugi::node_comment, text); }
  void instruction(char const* target, char const* data) override;

 private:
  pugi::xml_node add(pugi::xml_node_type type, char const* value);
  void add_text();

  pugi::xml_node parent_;
  std::string text_;
};

/// Fills an empty tree from the text of a document. Throws `error`; its message begins with the line.
void read(std::string_view text, Tree& tree);

}  // namespace sivane::dom
