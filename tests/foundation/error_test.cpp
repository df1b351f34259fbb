// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/foundation/error.h>

#include <exception>
#include <memory>
#include <type_traits>

namespace sivane {
namespace {

constexpr char const* no_text = nullptr;
constexpr unsigned int no_value = 0xFFFFFFFF;

void expect_error(error const& e, int code, char const* text) {
  EXPECT_EQ(e.code, code);
  EXPECT_STREQ(e.what(), text);
  EXPECT_EQ(e.text, text);
}

TEST(Error, HoldsCodeValueAndText) {
  expect_error(error("x"), -1, "x");
  expect_error(error(no_text), -1, "");
  expect_error(error(error::item_length_error), 0, "");
  expect_error(error(error::reserved_error), 1, "");
  expect_error(error(error::syntax_error, 0x12345678u), 2, "");
  expect_error(error(error::length_error, "Pat parse error"), 3, "Pat parse error");
  expect_error(error(error::length_error, no_text), 3, "");

  EXPECT_EQ(error("x").value, no_value);
  EXPECT_EQ(error(error::syntax_error).value, no_value);
  EXPECT_EQ(error(error::syntax_error, 0x12345678u).value, 0x12345678u);
}

TEST(Error, CopiesOutliveTheirOriginal) {
  auto original = std::make_unique<error>(error::syntax_error, 0x80000001u);
  original->text = "a text that is too long for the string's own storage";
  const error copy = *original;
  error assigned("other");
  assigned = *original;
  original.reset();
  for (error const* e : {&copy, static_cast<error const*>(&assigned)}) {
    expect_error(*e, 2, "a text that is too long for the string's own storage");
    EXPECT_EQ(e->value, 0x80000001u);
  }
}

TEST(Error, IsCaughtAsItselfOnly) {
  static_assert(std::is_base_of_v<std::exception, error>);
  static_assert(!std::is_convertible_v<error*, std::exception*>);
  bool caught = false;
  try {
    try {
      throw error(error::length_error, "thrown");
    } catch (std::exception const&) {
      FAIL() << "a handler for std::exception saw it";
    }
  } catch (error& e) {
    caught = true;
    expect_error(e, 3, "thrown");
  }
  EXPECT_TRUE(caught);
}

}  // namespace
}  // namespace sivane
