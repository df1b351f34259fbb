// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: Expat, and what it refuses of any document.
#pragma once

#include <expat.h>

#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>

namespace sivane::dom {

/// Receives what a document holds, in its order. What it throws ends the parsing.
class Content {
 public:
  /// `attributes` are names and values in turn, up to a null.
  virtual void start(char const* name, char const** attributes) = 0;
  virtual void end() = 0;
  /// One text may come in several pieces.
  virtual void text(std::string_view piece) = 0;
  virtual void comment(char const* text) = 0;
  virtual void instruction(char const* target, char const* data) = 0;

 protected:
  ~Content() = default;
};

/// Refuses with an `error` that begins with the line: what is not well-formed, a DOCTYPE, too many levels.
class Parser {
 public:
  explicit Parser(Content& content);

  void parse_all(std::string_view text);

  /// For the next `size` bytes of a document that comes in pieces.
  char* buffer(std::size_t size);
  /// Parses what was put there. False where `suspend` was called, until `resume` gives true.
  bool parse_buffer(std::size_t size, bool last);
  bool resume();
  /// Stops after what the content is receiving.
  void suspend() { XML_StopParser(parser_.get(), XML_TRUE); }
  /// How many bytes of the document came before the end of what the content is receiving, modulo the type.
  unsigned long position() const;

  [[noreturn]] void refuse(std::string const& reason) const;

 private:
  static void on_start(void* self, char const* name, char const** attributes);
  static void on_end(void* self, char const* name);
  static void on_text(void* self, char const* text, int size);
  static void on_comment(void* self, char const* text);
  static void on_instruction(void* self, char const* target, char const* data);
  static void on_doctype(void* self, char const*, char const*, char const*, int);
  template <class Step>
  static void guarded(void* self, Step step);
  bool went_through(XML_Status status) const;

  struct Free {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
  };

  Content& content_;
  int levels_ = 0;
  std::exception_ptr failure_;
  std::unique_ptr<std::remove_pointer_t<XML_Parser>, Free> parser_;
};

}  // namespace sivane::dom
