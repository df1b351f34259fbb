// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/dom/parser.h>
#include <sivane/dom/refusal.h>

namespace sivane::dom {

namespace {
template <class Pointer>
Pointer not_null(Pointer pointer) {
  if (pointer == nullptr) throw std::bad_alloc();
  return pointer;
}

/// Newer versions of Expat look at an unfinished token again only once there is twice as much of it. Those
/// who feed this parser see to that themselves, and have no more to feed where an element has its largest
/// size.
template <class Expat>
void look_at_each_piece(Expat parser) {
  if constexpr (requires { XML_SetReparseDeferralEnabled(parser, XML_FALSE); })
    XML_SetReparseDeferralEnabled(parser, XML_FALSE);
}
}  // namespace

Parser::Parser(Content& content) : content_(content), parser_(not_null(XML_ParserCreate(nullptr))) {
  look_at_each_piece(parser_.get());
  XML_SetUserData(parser_.get(), this);
  XML_SetElementHandler(parser_.get(), on_start, on_end);
  XML_SetCharacterDataHandler(parser_.get(), on_text);
  XML_SetCommentHandler(parser_.get(), on_comment);
  XML_SetProcessingInstructionHandler(parser_.get(), on_instruction);
  XML_SetStartDoctypeDeclHandler(parser_.get(), on_doctype);
}

void Parser::parse_all(std::string_view text) {
  went_through(XML_Parse(parser_.get(), text.data(), static_cast<int>(text.size()), XML_TRUE));
}

char* Parser::buffer(std::size_t size) {
  return static_cast<char*>(not_null(XML_GetBuffer(parser_.get(), static_cast<int>(size))));
}

bool Parser::parse_buffer(std::size_t size, bool last) {
  return went_through(XML_ParseBuffer(parser_.get(), static_cast<int>(size), last ? XML_TRUE : XML_FALSE));
}

bool Parser::resume() { return went_through(XML_ResumeParser(parser_.get())); }

unsigned long Parser::position() const {
  return static_cast<unsigned long>(XML_GetCurrentByteIndex(parser_.get())) +
         static_cast<unsigned long>(XML_GetCurrentByteCount(parser_.get()));
}

void Parser::refuse(std::string const& reason) const {
  auto const line = XML_GetCurrentLineNumber(parser_.get());
  throw error(("line " + std::to_string(line) + ": " + reason).c_str());
}

bool Parser::went_through(XML_Status status) const {
  if (failure_) std::rethrow_exception(failure_);
  if (status != XML_STATUS_ERROR) return status == XML_STATUS_OK;
  XML_Error const code = XML_GetErrorCode(parser_.get());
  if (code == XML_ERROR_NO_MEMORY) throw std::bad_alloc();
  refuse(code == XML_ERROR_NO_ELEMENTS && levels_ > 0 ? "unclosed element" : XML_ErrorString(code));
}

/// Expat is C: an exception waits until it has returned. It may call once more after it was stopped.
template <class Step>
void Parser::guarded(void* self, Step step) {
  auto& parser = *static_cast<Parser*>(self);
  if (parser.failure_) return;
  try {
    step(parser);
  } catch (...) {
    parser.failure_ = std::current_exception();
    XML_StopParser(parser.parser_.get(), XML_FALSE);
  }
}

void Parser::on_start(void* self, char const* name, char const** attributes) {
  guarded(self, [&](Parser& parser) {
    if (++parser.levels_ > max_levels) parser.refuse(too_many_levels());
    parser.content_.start(name, attributes);
  });
}

void Parser::on_end(void* self, char const*) {
  guarded(self, [](Parser& parser) {
    --parser.levels_;
    parser.content_.end();
  });
}

void Parser::on_text(void* self, char const* text, int size) {
  guarded(self, [&](Parser& parser) { parser.content_.text({text, static_cast<std::size_t>(size)}); });
}

void Parser::on_comment(void* self, char const* text) {
  guarded(self, [&](Parser& parser) { parser.content_.comment(text); });
}

void Parser::on_instruction(void* self, char const* target, char const* data) {
  guarded(self, [&](Parser& parser) { parser.content_.instruction(target, data); });
}

void Parser::on_doctype(void* self, char const*, char const*, char const*, int) {
  guarded(self, [](Parser& parser) { parser.refuse("a DOCTYPE is not accepted"); });
}

}  // namespace sivane::dom
