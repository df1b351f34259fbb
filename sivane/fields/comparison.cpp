// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Objects are the same when their visits tell the same.
#include <sivane/fields/field_list.h>

#include <cstring>
#include <string>
#include <type_traits>

namespace sivane {

namespace {

/// Everything that a visit tells but names, as bytes in which two different visits differ.
class Record final : public FieldVisitor {
 public:
  std::string const& bytes() const { return bytes_; }

  void number(Field const&, std::int64_t value) override { put('n', value); }
  void real(Field const&, double value) override { put('r', value); }
  void flag(Field const&, bool value) override { put('f', value); }
  void text(Field const&, std::string_view value) override { put_all(value); }
  void string(Field const&, std::string_view value) override { put_all(value); }
  void code(Field const&, std::string_view letters) override { put_all(letters); }
  void bytes(Field const&, unsigned char const* data, std::size_t size) override {
    put_all({reinterpret_cast<char const*>(data), size});
  }
  void date(Field const&, DateTime const& value) override {
    for (int const part : {value.day, value.month, value.year, value.hour, value.minute, value.second}) {
      put('d', part);
    }
  }
  void duration(Field const&, Duration const& value) override {
    for (int const part : {value.hour, value.minute, value.second}) put('u', part);
  }
  void begin_list(Field const&, std::size_t size) override { put('l', size); }
  void begin_descriptor(std::string_view element, DescriptorBase const&) override { put_all(element); }

 private:
  template <class Value>
  void put(char kind, Value value) {
    static_assert(std::is_arithmetic_v<Value>);
    char stored[sizeof value];
    std::memcpy(stored, &value, sizeof value);
    bytes_.push_back(kind);
    bytes_.append(stored, sizeof stored);
  }
  void put_all(std::string_view value) {
    put('s', value.size());
    bytes_.append(value);
  }

  std::string bytes_;
};

}  // namespace

bool same_fields(AnyObject one, AnyObject other) {
  Record first;
  Record second;
  visit_fields(one, first);
  visit_fields(other, second);
  return first.bytes() == second.bytes();
}

}  // namespace sivane
