// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <gtest/gtest.h>
#include <sivane/foundation/error.h>

#include <array>
#include <optional>
#include <string>

#include "case_file.h"

namespace sivane::testing {

/// The `error` that `action` throws, if any; whatever else it throws passes through.
template <class Action>
std::optional<error> caught_error(Action&& action) {
  try {
    action();
  } catch (error const& failure) {
    return failure;
  }
  return std::nullopt;
}

/// The code and text of the `error` that `action` throws as the case files write them; nothing where it
/// throws none.
template <class Action>
std::string thrown(Action&& action) {
  auto const failure = caught_error(action);
  if (!failure) return "";
  constexpr std::array names = {"no_errorcode", "item_length_error", "reserved_error", "syntax_error",
                                "length_error"};
  std::string const name = names.at(static_cast<std::size_t>(failure->code + 1));
  return failure->text.empty() ? name : name + ' ' + failure->what();
}

/// That a step has come out as its lines say; what is printed otherwise can be pasted into the case file.
inline void expect_lines(Step const& step, KeyedLines const& outcome) {
  std::string const text = difference(step, outcome);
  EXPECT_TRUE(text.empty()) << text;
}

/// For EXPECT_TRUE: whether `action` throws an `error` of this code and text.
template <class Action>
::testing::AssertionResult throws(Action&& action, error::errorcode_enum code, std::string const& text) {
  auto const failure = caught_error(action);
  if (failure && failure->code == code && failure->what() == text) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "thrown: " << thrown([&] {
           if (failure) throw *failure;
         });
}

/// The same for a failure that has a text alone.
template <class Action>
::testing::AssertionResult throws(Action&& action, std::string const& text) {
  return throws(action, error::no_errorcode, text);
}

}  // namespace sivane::testing
