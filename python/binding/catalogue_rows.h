// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <pybind11/pybind11.h>
#include <sivane/catalogue/catalogue.h>

namespace sivane::python {

/// What a catalogue knows, as lists with a dict for each row, which is what tables of data are made from.
pybind11::list services(catalogue::Catalogue const& of);
pybind11::list events(catalogue::Catalogue const& of);    ///< those of a service by start
pybind11::list networks(catalogue::Catalogue const& of);  ///< with their transport streams
pybind11::list bouquets(catalogue::Catalogue const& of);  ///< with their transport streams
pybind11::list programs(catalogue::Catalogue const& of);
pybind11::list access(catalogue::Catalogue const& of);  ///< CA systems of the CAT

pybind11::list local_time_offsets(catalogue::Catalogue const& of);  ///< that a TOT told last

}  // namespace sivane::python
