// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/foundation/parse_options.h>

#include <iosfwd>
#include <span>

namespace inspect {

/// An object of any table class: long and short frames offer the same operations without a common base.
class Table {
 public:
  virtual ~Table() = default;

  /// Throws `sivane::error`, as does `load`.
  virtual void parse(std::span<unsigned char const> section, sivane::ParseOptions& options) = 0;
  /// `node` is an `IXMLDOMNode*`.
  virtual void load(void* node) = 0;
  virtual void dump(std::ostream& out) const = 0;
  virtual void save(void* document, void* element) const = 0;
};

template <class Class>
class TableOf final : public Table {
 public:
  void parse(std::span<unsigned char const> section, sivane::ParseOptions& options) override {
    table_.Parse(section.data(), section.size(), options);
  }
  void load(void* node) override { table_.Parse(node); }
  void dump(std::ostream& out) const override { table_.dump_state(out); }
  // A refusal leaves what was saved before it, which is all there is of a `DsmCC`.
  void save(void* document, void* element) const override { table_.SaveSection(document, element); }
  Class const& object() const { return table_; }

 private:
  Class table_;
};

/// The object itself; null where it is of another class, or sent ahead of the time from which it applies.
template <class Class>
Class const* current_as(Table const& table) {
  auto const* const same = dynamic_cast<TableOf<Class> const*>(&table);
  return same != nullptr && same->object().current_next_indicator == 1 ? &same->object() : nullptr;
}

}  // namespace inspect
