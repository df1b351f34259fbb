// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "catalogue.h"

#include <pybind11/stl.h>
#include <sivane/catalogue/catalogue.h>

#include <cstdint>
#include <memory>
#include <string>

#include "buffer.h"
#include "catalogue_rows.h"
#include "in_use.h"
#include "lock.h"
#include "selection.h"
#include "stream_reader.h"
#include "values.h"

namespace sivane::python {

namespace py = pybind11;

namespace {

/// A catalogue of a stream, and what reads the stream.
class StreamCatalogue final : private SectionSink {
 public:
  StreamCatalogue(Selection const& selection, catalogue::Options const& options)
      : known_(options), reader_(selection, *this) {}

  void push(py::handle data) {
    Buffer const buffer(data);
    InUse::Claim const claim(in_use_);
    Unlocked const unlocked;
    reader_.push(buffer.bytes().data(), buffer.bytes().size());
  }
  void finish() {
    InUse::Claim const claim(in_use_);
    Unlocked const unlocked;
    reader_.finish();
  }

  /// Something made of what is known, while nothing is added to it.
  template <class Made>
  auto made(Made make) {
    InUse::Reading const reading(in_use_);
    return make(known_);
  }
  std::uint64_t failures() const { return failures_; }

 private:
  void take(SectionView const& section) override try {
    known_.add(section.pid, section.bytes, section.size);
  } catch (error const&) {
    ++failures_;
  }

  catalogue::Catalogue known_;
  std::uint64_t failures_ = 0;  // sections that were refused
  StreamReader reader_;
  InUse in_use_;
};

/// A property that is made of the catalogue each time.
template <class Made>
auto made_by(Made make) {
  return [make](StreamCatalogue& self) { return self.made(make); };
}

}  // namespace

void add_catalogue(py::module_& module) {
  py::class_<StreamCatalogue>(
      module, "Catalogue",
      "What a stream has, put together from its tables: networks, services, programs, "
      "events. Each list has a dict for each row and is made anew when it is asked for.")
      .def(py::init([](py::object const& registrations, bool every_section, std::string const& charset,
                       std::string const& charset_always, std::size_t memory) {
             catalogue::Options options;
             options.memory = memory;
             options.texts.default_table = charset;
             options.texts.overrule = charset_always;
             return std::make_unique<StreamCatalogue>(selection_of(registrations, every_section), options);
           }),
           py::arg("registrations") = py::none(), py::kw_only(), py::arg("every_section") = true,
           py::arg("charset") = "", py::arg("charset_always") = "",
           py::arg("memory") = catalogue::Options().memory)
      .def("push", &StreamCatalogue::push, py::arg("data"), "Takes the next bytes of the stream.")
      .def("finish", &StreamCatalogue::finish,
           "Ends the stream. Raises Error where no packet was found in it.")
      .def_property_readonly("services", made_by(services), "Those that an SDT describes.")
      .def_property_readonly("events", made_by(events), "By service and start.")
      .def_property_readonly("networks", made_by(networks), "By network_id, with their transport streams.")
      .def_property_readonly("bouquets", made_by(bouquets), "By bouquet_id, with their transport streams.")
      .def_property_readonly("programs", made_by(programs), "By program_number.")
      .def_property_readonly("access", made_by(access), "The CA systems of the CAT.")
      .def_property_readonly("local_time_offsets", made_by(local_time_offsets),
                             "That a TOT told last, by country.")
      .def_property_readonly("time", made_by([](auto const& known) {
                               auto const time = known.time();
                               return time ? date(*time) : py::none();
                             }),
                             "The time that a TDT or TOT told last, or None.")
      .def_property_readonly("failures", &StreamCatalogue::failures,
                             "Sections that were refused, as for a wrong CRC.")
      .def_property_readonly("problems", made_by([](auto const& known) { return known.problems(); }),
                             "Broken descriptors and loops that were passed over.")
      .def_property_readonly("left_out", made_by([](auto const& known) { return known.left_out(); }),
                             "How often something was not taken for want of memory.");
}

}  // namespace sivane::python
