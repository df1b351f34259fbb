// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/dom/element_reader.h>
#include <sivane/dom/nodes.h>
#include <sivane/dom/refusal.h>
#include <sivane/dom/tree_builder.h>

#include <algorithm>
#include <istream>
#include <optional>
#include <set>
#include <utility>

namespace sivane::dom {

namespace {

/// Expat keeps each different name of a document, so that a hostile one could fill the memory with them.
class Names {
 public:
  /// False once there are too many.
  bool take(std::string_view name) {
    if (known_.find(name) == known_.end()) bytes_ += known_.emplace(name).first->size() + 1;
    return bytes_ <= max_bytes;
  }

 private:
  static constexpr std::size_t max_bytes = 1 << 20;
  std::set<std::string, std::less<>> known_;
  std::size_t bytes_ = 0;
};

}  // namespace

class ElementReader::Impl final : public Content {
 public:
  explicit Impl(std::istream& in) : in_(in), parser_(*this) { advance(); }

  CComPtr<IXMLDOMNode> next() {
    advance();
    auto const document = std::exchange(document_, {});
    return document ? CComPtr<IXMLDOMNode>(document->root()) : CComPtr<IXMLDOMNode>();
  }

  std::string const& root_name() const { return root_name_; }

 private:
  void start(char const* name, char const** attributes) override {
    take_names(name, attributes);
    if (++level_ == 1) {
      root_name_ = name;
      stop_here();
      return;
    }
    if (level_ == 2) builder_.emplace(*(document_ = new_tree()).get());
    builder_->start(name, attributes);
  }

  void end() override {
    if (--level_ == 0) return;
    builder_->end();
    if (level_ == 1) stop_here();
  }

  void text(std::string_view piece) override {
    if (level_ > 1) builder_->text(piece);
  }
  void comment(char const* text) override {
    if (level_ > 1) builder_->comment(text);
  }
  void instruction(char const* target, char const* data) override {
    if (level_ > 1) builder_->instruction(target, data);
  }

  void take_names(char const* name, char const** attributes) {
    bool few = names_.take(name);
    for (; *attributes != nullptr; attributes += 2) few = names_.take(*attributes) && few;
    if (!few) parser_.refuse("too many names");
  }

  void stop_here() {
    ended_at_ = parser_.position();
    parser_.suspend();
  }

  /// Up to the end of the next element, or of the document.
  void advance() {
    bool stopped = false;
    while (!stopped && !ended_) {
      if (suspended_) {
        suspended_ = !parser_.resume();
        ended_ = !suspended_ && last_;
      } else {
        parse_piece();
      }
      stopped = suspended_;
    }
  }

  /// As much as is pending, since Expat looks at an unfinished token anew with each piece.
  void parse_piece() {
    std::size_t const pending = fed_ - ended_at_;
    if (pending >= max_size) parser_.refuse(too_large());
    std::size_t const wanted = std::min(std::max(least_piece, pending), max_size - pending);
    std::size_t const got = read(parser_.buffer(wanted), wanted);
    fed_ += got;
    last_ = got < wanted;
    suspended_ = !parser_.parse_buffer(got, last_);
    ended_ = !suspended_ && last_;
  }

  std::size_t read(char* to, std::size_t size) {
    errno = 0;
    in_.read(to, static_cast<std::streamsize>(size));
    if (in_.bad()) throw error(system_reason().c_str());
    return static_cast<std::size_t>(in_.gcount());
  }

  static constexpr std::size_t least_piece = 1 << 16;

  std::istream& in_;
  Parser parser_;
  Names names_;
  std::string root_name_;
  CComPtr<DocumentNode> document_;  ///< of the element under way, or complete and not handed out yet
  std::optional<TreeBuilder> builder_;
  int level_ = 0;
  unsigned long fed_ = 0;       ///< bytes that the parser was given, modulo the type
  unsigned long ended_at_ = 0;  ///< where in them the last element ended
  bool last_ = false;           ///< the parser has all
  bool suspended_ = false;
  bool ended_ = false;
};

namespace {
constexpr char task[] = "load the document";
}

ElementReader::ElementReader(std::istream& in)
    : impl_(explained(task, [&] { return std::make_unique<Impl>(in); })) {}
ElementReader::ElementReader(ElementReader&&) noexcept = default;
ElementReader& ElementReader::operator=(ElementReader&&) noexcept = default;
ElementReader::~ElementReader() = default;

CComPtr<IXMLDOMNode> ElementReader::next() {
  return explained(task, [&] { return impl_->next(); });
}

std::string const& ElementReader::root_name() const { return impl_->root_name(); }

}  // namespace sivane::dom
