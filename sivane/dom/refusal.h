// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: what documents are refused for, in words.
#pragma once

#include <sivane/dom/characters.h>
#include <sivane/foundation/error.h>

#include <cerrno>
#include <cstddef>
#include <new>
#include <string>
#include <system_error>

namespace sivane::dom {

constexpr std::size_t max_size = 64 << 20;  ///< bytes of a document, or of one element where they come singly

constexpr int max_levels = 64;

inline std::string too_many_levels() { return "more than " + std::to_string(max_levels) + " levels"; }
inline std::string too_large() { return "more than " + std::to_string(max_size >> 20) + " MiB"; }

inline void check_name(std::string const& name) {
  if (!is_name(name)) throw error(("no name for an element: \"" + name + '"').c_str());
}

/// Why the system did not do what was asked last; `errno` was set to 0 before.
inline std::string system_reason() {
  if (errno == ENOMEM) throw std::bad_alloc();
  return errno == 0 ? "the stream fails" : std::generic_category().message(errno);
}

/// Runs `step`; its failures say in front what they hindered.
template <class Step>
auto explained(std::string const& task, Step step) {
  try {
    return step();
  } catch (error const& failure) {
    throw error(("cannot " + task + ": " + failure.what()).c_str());
  }
}

}  // namespace sivane::dom
