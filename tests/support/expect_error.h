// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <gtest/gtest.h>
#include <sivane/foundation/error.h>

#include <optional>
#include <string>

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

/// For EXPECT_TRUE: whether `action` throws an `error` of this code and text.
template <class Action>
::testing::AssertionResult throws(Action&& action, error::errorcode_enum code, std::string const& text) {
  const auto failure = caught_error(action);
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
