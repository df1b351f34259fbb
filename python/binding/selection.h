// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <pybind11/pybind11.h>

#include <utility>

#include "stream_reader.h"

namespace sivane::python {

inline std::pair<int, int> numbers_of(pybind11::handle pair) try {
  return pair.cast<std::pair<int, int>>();
} catch (pybind11::cast_error const&) {
  throw pybind11::type_error("a registration is a pair of numbers, a PID and a table id");
}

/// `registrations` is None, or pairs of PID and table id.
inline Selection selection_of(pybind11::object const& registrations, bool every_section) {
  Selection selection;
  selection.every_section = every_section;
  if (registrations.is_none()) return selection;
  selection.registrations.emplace();
  for (pybind11::handle const pair : registrations) {
    auto const [pid, table_id] = numbers_of(pair);
    if (pid < 0 || pid > 0x1FFF || table_id < 0 || table_id > 0xFF) {
      throw pybind11::value_error("a registration is a PID, 0 to 0x1fff, and a table id, 0 to 0xff");
    }
    selection.registrations->push_back({pid, table_id});
  }
  return selection;
}

}  // namespace sivane::python
