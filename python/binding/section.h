// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <pybind11/pybind11.h>

#include "settings.h"
#include "stream_reader.h"

namespace sivane::python {

/// A new `sivane.Section`, with a copy of the bytes. Its table is parsed where it is asked for.
pybind11::object make_section(SectionView const& view, SharedSettings const& settings);

/// A table from bytes, as the settings want it. Throws `error`.
pybind11::object parsed(unsigned char const* section, std::size_t size, SharedSettings const& settings,
                        std::string_view class_name = {});

/// Makes `sivane.Section` and `parse`.
void add_sections(pybind11::module_& module);

}  // namespace sivane::python
