// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/tables/any_table.h>

#include <iosfwd>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>

namespace inspect {

/// A table of any class, with the operations that all of them have.
class Table {
 public:
  explicit Table(sivane::AnyTable table) : table_(std::move(table)) {}

  /// Throws `sivane::error`, as does `load`.
  void parse(std::span<unsigned char const> section, sivane::ParseOptions& options) {
    each([&](auto& table) { table.Parse(section.data(), section.size(), options); });
  }
  /// `node` is an `IXMLDOMNode*`.
  void load(void* node) {
    each([&](auto& table) { table.Parse(node); });
  }
  void dump(std::ostream& out) const {
    each([&](auto const& table) { table.dump_state(out); });
  }
  // A refusal leaves what was saved before it, which is all there is of a `DsmCC`.
  void save(void* document, void* element) const {
    each([&](auto const& table) { table.SaveSection(document, element); });
  }
  void visit(sivane::FieldVisitor& visitor) const { sivane::visit_table(table_, visitor); }
  int table_id() const {
    int id = -1;
    each([&id](auto const& table) { id = table.table_id; });
    return id;
  }
  std::string_view class_name() const { return sivane::class_name(table_); }

  sivane::AnyTable const& any() const { return table_; }

 private:
  template <class Self, class Act>
  static void act(Self& self, Act act) {
    std::visit(
        [&act](auto& table) {
          if constexpr (!std::is_same_v<std::monostate, std::remove_cvref_t<decltype(table)>>) act(table);
        },
        self);
  }
  template <class Act>
  void each(Act a) {
    act(table_, a);
  }
  template <class Act>
  void each(Act a) const {
    act(table_, a);
  }

  sivane::AnyTable table_;
};

}  // namespace inspect
