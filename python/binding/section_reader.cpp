// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "section_reader.h"

#include <memory>
#include <string>
#include <utility>

#include "buffer.h"
#include "in_use.h"
#include "lock.h"
#include "section_batch.h"
#include "selection.h"

namespace sivane::python {

namespace py = pybind11;

namespace {

class SectionReader {
 public:
  SectionReader(Selection const& selection, SharedSettings settings)
      : settings_(std::move(settings)), reader_(selection, queue_) {}

  py::object push(py::handle data) {
    Buffer const buffer(data);
    return give([&] { reader_.push(buffer.bytes().data(), buffer.bytes().size()); });
  }
  py::object finish() {
    return give([&] { reader_.finish(); });
  }
  std::uint64_t packets() const { return reader_.packets; }
  std::uint64_t skipped_bytes() const { return reader_.skipped_bytes; }

 private:
  template <class Read>
  py::object give(Read read) {
    InUse::Claim const claim(in_use_);
    {
      Unlocked const unlocked;
      read();
    }
    return make_batch(std::exchange(queue_, {}), settings_);
  }

  SharedSettings settings_;
  InUse in_use_;
  SectionQueue queue_;
  StreamReader reader_;
};

}  // namespace

void add_section_reader(py::module_& module) {
  add_batches();
  py::class_<SectionReader>(module, "_SectionReader",
                            "Takes a stream in pieces of any size and gives its sections.")
      .def(py::init([](py::object const& registrations, bool every_section, bool tolerant,
                       std::string const& charset, std::string const& charset_always) {
             return std::make_unique<SectionReader>(
                 selection_of(registrations, every_section),
                 std::make_shared<Settings>(tolerant, charset, charset_always));
           }),
           py::arg("registrations") = py::none(), py::kw_only(), py::arg("every_section") = true,
           py::arg("tolerant") = false, py::arg("charset") = "", py::arg("charset_always") = "")
      .def("push", &SectionReader::push, py::arg("data"),
           "Takes the next bytes; the sections that they complete.")
      .def("finish", &SectionReader::finish,
           "Ends the stream; the last sections. Raises Error where no packet was found in it.")
      .def_property_readonly("packets", &SectionReader::packets, "Packets that were found so far.")
      .def_property_readonly("skipped_bytes", &SectionReader::skipped_bytes,
                             "Bytes so far that belong to no packet.");
}

}  // namespace sivane::python
