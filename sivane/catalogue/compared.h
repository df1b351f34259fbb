// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <utility>

namespace sivane::catalogue {

// What has a `tied()` is compared by it, member by member: `tied` is the one list of the members.

/// Whether all members are equal.
template <class T, class = decltype(std::declval<T const&>().tied())>
bool operator==(T const& left, T const& right) {
  return left.tied() == right.tied();
}
/// Whether a member differs.
template <class T, class = decltype(std::declval<T const&>().tied())>
bool operator!=(T const& left, T const& right) {
  return !(left == right);
}
/// By the first member that differs.
template <class T, class = decltype(std::declval<T const&>().tied())>
bool operator<(T const& left, T const& right) {
  return left.tied() < right.tied();
}

}  // namespace sivane::catalogue
