// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "nearest_word.h"

#include <algorithm>
#include <vector>

namespace inspect {

namespace {

/// How many letters must be put in, left out, replaced or swapped with the next to make one of the other.
std::size_t changes_between(std::string_view left, std::string_view right) {
  std::vector<std::vector<std::size_t>> changes(left.size() + 1, std::vector<std::size_t>(right.size() + 1));
  for (std::size_t i = 0; i <= left.size(); ++i) {
    for (std::size_t j = 0; j <= right.size(); ++j) {
      if (i == 0 || j == 0) {
        changes[i][j] = i + j;
        continue;
      }
      std::size_t const replaced = changes[i - 1][j - 1] + (left[i - 1] == right[j - 1] ? 0 : 1);
      changes[i][j] = std::min({replaced, changes[i - 1][j] + 1, changes[i][j - 1] + 1});
      bool const is_swapped = i > 1 && j > 1 && left[i - 1] == right[j - 2] && left[i - 2] == right[j - 1];
      if (is_swapped) changes[i][j] = std::min(changes[i][j], changes[i - 2][j - 2] + 1);
    }
  }
  return changes[left.size()][right.size()];
}

}  // namespace

std::string suggestion(std::string_view written, std::span<std::string const> words) {
  std::string_view nearest;
  std::size_t fewest = std::max<std::size_t>(2, written.size() / 3) + 1;
  for (std::string const& word : words) {
    // A word is near only where some of it was written.
    std::size_t const changes = std::max(changes_between(written, word), word.size() <= 2 ? fewest : 0);
    if (changes >= fewest || changes >= word.size()) continue;
    fewest = changes;
    nearest = word;
  }
  return nearest.empty() ? "" : "; did you mean " + std::string(nearest) + "?";
}

}  // namespace inspect
