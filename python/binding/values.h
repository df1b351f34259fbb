// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <pybind11/pybind11.h>
#include <sivane/foundation/time.h>

#include <chrono>
#include <string>
#include <string_view>

namespace sivane::python {

/// Values as Python has them. A date or duration that a broadcaster left undefined is None.
pybind11::object date(DateTime const& date);                         ///< a datetime of UTC
pybind11::object duration(Duration const& duration);                 ///< a timedelta
pybind11::object date(std::chrono::sys_seconds time);                ///< a datetime of UTC
pybind11::object duration(std::chrono::seconds span);                ///< a timedelta
pybind11::str utf8(std::string_view text);                           ///< what is no UTF-8 as U+FFFD
pybind11::bytes bytes(unsigned char const* data, std::size_t size);  ///< a copy

/// The same by ISO 8601; empty where undefined.
std::string date_text(DateTime const& date);
std::string duration_text(Duration const& duration);

/// To be called once before the others.
void prepare_values();

}  // namespace sivane::python
