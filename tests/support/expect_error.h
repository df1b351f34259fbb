// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <gtest/gtest.h>
#include <sivane/foundation/error.h>

#include <optional>
#include <string>
#include <utility>

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
  std::pair<error::errorcode_enum, char const*> const names[] = {
      {error::no_errorcode, "no_errorcode"},
      {error::length_error, "length_error"},
      {error::item_length_error, "item_length_error"},
      {error::syntax_error, "syntax_error"}};
  std::string text = "some other code";
  for (auto const& [code, name] : names) {
    if (code == failure->code) text = name;
  }
  std::string const message = failure->what();
  return message.empty() ? text : text + ' ' + message;
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
  if (!failure) return ::testing::AssertionFailure() << "nothing was thrown";
  if (failure->code == code && failure->what() == text) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure()
         << "thrown: code " << static_cast<int>(failure->code) << ", text \"" << failure->what() << '"';
}

/// The same for a failure that has a text alone.
template <class Action>
::testing::AssertionResult throws(Action&& action, std::string const& text) {
  return throws(action, error::no_errorcode, text);
}

}  // namespace sivane::testing
