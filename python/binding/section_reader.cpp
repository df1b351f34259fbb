// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "section_reader.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "buffer.h"
#include "in_use.h"
#include "section.h"
#include "selection.h"

namespace sivane::python {

namespace py = pybind11;

namespace {

/// Sections as they came, copied into one block until the interpreter's lock is held again.
class SectionQueue final : public SectionSink {
 public:
  void take(SectionView const& section) override {
    views_.push_back(section);
    bytes_.insert(bytes_.end(), section.bytes, section.bytes + section.size);
  }

  /// Gives all of them as objects and forgets them.
  py::list give(SharedSettings const& settings) {
    py::list made(views_.size());
    std::size_t begin = 0;
    for (std::size_t i = 0; i < views_.size(); ++i) {
      views_[i].bytes = bytes_.data() + begin;
      begin += views_[i].size;
      PyList_SET_ITEM(made.ptr(), static_cast<Py_ssize_t>(i),
                      make_section(views_[i], settings).release().ptr());
    }
    clear();
    return made;
  }
  void clear() {
    views_.clear();
    bytes_.clear();
  }

 private:
  std::vector<SectionView> views_;  // their bytes are in the block, one section behind the other
  std::vector<unsigned char> bytes_;
};

class SectionReader {
 public:
  SectionReader(Selection const& selection, SharedSettings settings)
      : settings_(std::move(settings)), reader_(selection, queue_) {}

  py::list push(py::handle data) {
    Buffer const buffer(data);
    return give([&] { reader_.push(buffer.bytes().data(), buffer.bytes().size()); });
  }
  py::list finish() {
    return give([&] { reader_.finish(); });
  }
  std::uint64_t packets() const { return reader_.packets; }
  std::uint64_t skipped_bytes() const { return reader_.skipped_bytes; }

 private:
  template <class Read>
  py::list give(Read read) {
    InUse::Claim const claim(in_use_);
    queue_.clear();
    {
      py::gil_scoped_release const unlocked;
      read();
    }
    return queue_.give(settings_);
  }

  SharedSettings settings_;
  SectionQueue queue_;
  StreamReader reader_;
  InUse in_use_;
};

}  // namespace

void add_section_reader(py::module_& module) {
  py::class_<SectionReader>(module, "SectionReader",
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
