// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// From the text of a document to its tree. Expat does the parsing, since pugixml's own parser takes much that
// is not well-formed.
#include <expat.h>
#include <sivane/dom/tree.h>
#include <sivane/foundation/error.h>

#include <exception>
#include <memory>
#include <string_view>
#include <type_traits>

namespace sivane::dom {

namespace {

class Reader {
 public:
  explicit Reader(Tree& tree) : parent_(tree.document), parser_(not_null(XML_ParserCreate(nullptr))) {
    XML_SetUserData(parser_.get(), this);
    XML_SetElementHandler(parser_.get(), on_start, on_end);
    XML_SetCharacterDataHandler(parser_.get(), on_text);
    XML_SetCommentHandler(parser_.get(), on_comment);
    XML_SetProcessingInstructionHandler(parser_.get(), on_instruction);
    XML_SetStartDoctypeDeclHandler(parser_.get(), on_doctype);
  }

  void read(std::string_view text) {
    XML_Status const status = XML_Parse(parser_.get(), text.data(), static_cast<int>(text.size()), XML_TRUE);
    if (failure_) std::rethrow_exception(failure_);
    if (status == XML_STATUS_OK) return;
    XML_Error const code = XML_GetErrorCode(parser_.get());
    if (code == XML_ERROR_NO_MEMORY) throw std::bad_alloc();
    refuse(code == XML_ERROR_NO_ELEMENTS && levels_ > 0 ? "unclosed element" : XML_ErrorString(code));
  }

 private:
  static void on_start(void* self, char const* name, char const** attributes) {
    guarded(self, [&](Reader& reader) { reader.start(name, attributes); });
  }
  static void on_end(void* self, char const*) {
    guarded(self, [](Reader& reader) { reader.end(); });
  }
  static void on_text(void* self, char const* text, int size) {
    guarded(self, [&](Reader& reader) { reader.text_.append(text, static_cast<std::size_t>(size)); });
  }
  static void on_comment(void* self, char const* text) {
    guarded(self, [&](Reader& reader) { reader.add(pugi::node_comment, text); });
  }
  static void on_instruction(void* self, char const* target, char const* data) {
    guarded(self, [&](Reader& reader) { check_memory(reader.add(pugi::node_pi, data).set_name(target)); });
  }
  static void on_doctype(void* self, char const*, char const*, char const*, int) {
    guarded(self, [](Reader& reader) { reader.refuse("a DOCTYPE is not accepted"); });
  }

  /// Expat is C: an exception waits until it has returned. It may call once more after it was stopped.
  template <class Step>
  static void guarded(void* self, Step step) {
    auto& reader = *static_cast<Reader*>(self);
    if (reader.failure_) return;
    try {
      step(reader);
    } catch (...) {
      reader.failure_ = std::current_exception();
      XML_StopParser(reader.parser_.get(), XML_FALSE);
    }
  }

  void start(char const* name, char const** attributes) {
    add_text();
    if (++levels_ > max_levels) refuse("more than " + std::to_string(max_levels) + " levels");
    parent_ = append_element(parent_, name);
    for (; *attributes != nullptr; attributes += 2) append_attribute(parent_, attributes[0], attributes[1]);
  }

  void end() {
    add_text();
    --levels_;
    parent_ = parent_.parent();
  }

  pugi::xml_node add(pugi::xml_node_type type, char const* value) {
    add_text();
    pugi::xml_node node = not_null(parent_.append_child(type));
    check_memory(node.set_value(value));
    return node;
  }

  /// Text comes in pieces: it is complete where something else follows. Blanks alone only lay out the
  /// document.
  void add_text() {
    if (text_.find_first_not_of(" \t\r\n") != std::string::npos) {
      check_memory(not_null(parent_.append_child(pugi::node_pcdata)).set_value(text_.c_str()));
    }
    text_.clear();
  }

  [[noreturn]] void refuse(std::string const& reason) const {
    auto const line = XML_GetCurrentLineNumber(parser_.get());
    throw error(("line " + std::to_string(line) + ": " + reason).c_str());
  }

  struct Free {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
  };

  pugi::xml_node parent_;
  std::string text_;
  int levels_ = 0;
  std::exception_ptr failure_;
  std::unique_ptr<std::remove_pointer_t<XML_Parser>, Free> parser_;
};

}  // namespace

void read(std::string_view text, Tree& tree) { Reader(tree).read(text); }

}  // namespace sivane::dom
