// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/dom/refusal.h>
#include <sivane/dom/writer.h>

#include <array>

namespace sivane::dom {

namespace {

// What stands for a character in a text and in an attribute, or null (XML 1.0, 2.4 and 3.3.3). Other controls
// are not in a tree (characters.h).
using Escapes = std::array<char const*, 256>;

constexpr Escapes text_escapes = [] {
  Escapes escapes{};
  escapes['&'] = "&amp;";
  escapes['<'] = "&lt;";
  escapes['>'] = "&gt;";
  return escapes;
}();

constexpr Escapes attribute_escapes = [] {
  Escapes escapes{};
  escapes['&'] = "&amp;";
  escapes['<'] = "&lt;";
  escapes['"'] = "&quot;";
  escapes['\t'] = "&#09;";
  escapes['\n'] = "&#10;";
  escapes['\r'] = "&#13;";
  return escapes;
}();

void append_escaped(std::string& text, std::string_view piece, Escapes const& escapes) {
  auto plain = piece.begin();
  for (auto at = piece.begin(); at != piece.end(); ++at) {
    char const* const escape = escapes[static_cast<unsigned char>(*at)];
    if (escape == nullptr) continue;
    text.append(plain, at).append(escape);
    plain = at + 1;
  }
  text.append(plain, piece.end());
}

/// Writes a node with all that is below it: each in a line of its own, two blanks a level, but that nothing
/// is put in front of a text and behind it.
class Printer {
 public:
  Printer(std::string& text, int levels_above) : text_(text), levels_above_(levels_above) {}

  void print(Place const& root) {
    Walk walk(root);
    do {
      if (walk.place().kind == Kind::text) {
        append_escaped(text_, static_cast<Leaf const&>(walk.place()).value, text_escapes);
        is_behind_text_ = true;
      } else {
        step(walk);
      }
    } while (walk.advance());
    text_ += '\n';
  }

 private:
  void step(Walk const& walk) {
    int const level = levels_above_ + walk.level();
    if (is_first_ || !is_behind_text_) begin_line(level);
    is_first_ = is_behind_text_ = false;
    Place const& place = walk.place();
    if (place.kind != Kind::element) return print_leaf(static_cast<Leaf const&>(place));
    auto const& element = static_cast<Element const&>(place);
    if (walk.is_leaving()) {
      text_.append("</").append(element.name) += '>';
      return;
    }
    if (level >= max_levels) throw error(too_many_levels().c_str());
    start(element);
  }

  void begin_line(int level) {
    if (!is_first_) text_ += '\n';
    text_.append(2 * static_cast<std::size_t>(level), ' ');
  }

  void start(Element const& element) {
    (text_ += '<') += element.name;
    for (Attribute const* at = element.attributes; at != nullptr; at = at->next) {
      (text_ += ' ').append(at->name).append("=\"");
      append_escaped(text_, at->value, attribute_escapes);
      text_ += '"';
    }
    text_ += element.first == nullptr ? " />" : ">";
  }

  void print_leaf(Leaf const& leaf) {
    if (leaf.kind == Kind::comment) {
      text_.append("<!--").append(leaf.value).append("-->");
      return;
    }
    text_.append("<?").append(leaf.name);
    if (!leaf.value.empty()) (text_ += ' ') += leaf.value;
    text_ += "?>";
  }

  std::string& text_;
  int levels_above_;
  bool is_first_ = true;
  bool is_behind_text_ = false;
};

Element const& checked_root(DocumentNode const& document) {
  Element const* const root = document.root();
  if (root == nullptr) throw error("there is no root element");
  return *root;
}

}  // namespace

std::string write(DocumentNode const& document) {
  checked_root(document);
  std::string text = declaration;
  for (Place const* node = document.first; node != nullptr; node = node->next) Printer(text, 0).print(*node);
  return text;
}

void append_root(std::string& text, DocumentNode const& document, int levels_above) {
  Printer(text, levels_above).print(checked_root(document));
}

}  // namespace sivane::dom
