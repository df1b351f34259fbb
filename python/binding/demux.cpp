// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "demux.h"

#include <pybind11/stl.h>
#include <sivane/demux/demux.h>
#include <sivane/demux/packet_finder.h>

#include <algorithm>
#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "buffer.h"
#include "in_use.h"
#include "lock.h"
#include "packet_numbers.h"
#include "section.h"

namespace sivane::python {

namespace py = pybind11;

namespace {

constexpr std::size_t piece_size = std::size_t{1024} * ts_packet_size;  // until signals are looked at

/// What a host derives from: packets in, sections to its hook.
class HookedDemux : private DemuxPush, private PacketFinder {
 public:
  HookedDemux(bool every_section, bool tolerant, std::string const& charset,
              std::string const& charset_always)
      : settings_(std::make_shared<Settings>(tolerant, charset, charset_always)) {
    if (every_section) set_reassembly(Reassembly::every_section);
  }
  virtual ~HookedDemux() = default;

  virtual void on_section(py::object section) = 0;

  void push(py::handle data) {
    Buffer const buffer(data);
    if (buffer.bytes().size() % ts_packet_size != 0) {
      throw error(
          ("no whole number of packets: " + std::to_string(buffer.bytes().size()) + " bytes").c_str());
    }
    in_pieces(buffer.bytes(), [this](std::span<unsigned char const> piece) { push_whole(piece); });
  }
  void push_pieces(py::handle data) {
    Buffer const buffer(data);
    in_pieces(buffer.bytes(), [this](std::span<unsigned char const> piece) {
      PacketFinder::push(piece.data(), piece.size());
    });
  }
  void finish() {
    work([this] { flush(); });
  }

  void add(int pid, int table_id) {
    in_use_.check();
    check_pid(pid);
    if (table_id < 0 || table_id > 0xFF) throw py::value_error("a table id is 0 to 0xff");
    add_psi_handler(pid, table_id);
  }
  void remove(int pid, int table_id) {
    in_use_.check();
    remove_psi_handler(pid, table_id);
  }
  void add_usual() {
    in_use_.check();
    for (Registration const& usual : usual_registrations()) add_psi_handler(usual.pid, usual.table_id);
  }
  void count_pid(std::optional<int> pid) {
    in_use_.check();
    if (!pid) return count_all();
    check_pid(*pid);
    count(*pid);
  }
  PidCounters const* counters_of(int pid) const {
    in_use_.check();
    return counters(pid);
  }
  std::uint64_t packet_count() const { return static_cast<std::uint64_t>(numbers_.count()); }
  std::uint64_t bytes_skipped() const { return skipped_bytes; }

 private:
  static void check_pid(int pid) {
    if (pid < 0 || pid > 0x1FFF) throw py::value_error("a PID is 0 to 0x1fff");
  }

  template <class Push>
  void in_pieces(std::span<unsigned char const> bytes, Push push_piece) {
    work([&] {
      for (std::size_t begin = 0; begin < bytes.size(); begin += piece_size) {
        push_piece(bytes.subspan(begin, std::min(piece_size, bytes.size() - begin)));
        if (is_interrupted()) return;
      }
    });
  }

  /// Runs it without the interpreter's lock. Of what went wrong the first leaves when it is done.
  template <class Work>
  void work(Work run) {
    InUse::Claim const claim(in_use_);
    is_ending_ = false;
    {
      Unlocked unlocked;
      unlocked_ = &unlocked;
      try {
        run();
      } catch (...) {
        if (!raised_) raised_ = std::current_exception();
      }
    }
    if (raised_) std::rethrow_exception(std::exchange(raised_, nullptr));
  }

  /// Whether a signal or a hook wants the work to end at once.
  bool is_interrupted() {
    Unlocked::Break const locked(*unlocked_);
    if (!is_ending_ && PyErr_CheckSignals() != 0) keep(py::error_already_set());
    return std::exchange(is_ending_, false);
  }

  void keep(py::error_already_set raised) {
    // The depth that is exceeded would be reached again and again, by each section of each demultiplexer.
    if (!raised.matches(PyExc_Exception) || raised.matches(PyExc_RecursionError)) is_ending_ = true;
    if (!raised_) raised_ = std::make_exception_ptr(std::move(raised));
  }

  void push_whole(std::span<unsigned char const> piece) {
    int const count = static_cast<int>(piece.size()) / ts_packet_size;
    push_run({piece.data(), count, ts_packet_size, pushed_});
    pushed_ += piece.size();
  }
  void on_packets(PacketRun const& run) override { push_run(run); }

  void push_run(PacketRun const& run) {
    numbers_.add(run);
    if (push_packets(run) != 0) throw error("a packet does not begin with 0x47");
  }

  using DemuxPush::on_psi_section;
  void on_psi_section(int pid, int, int, unsigned char const* section) override {
    auto const size = static_cast<std::size_t>(section_size(section));
    std::uint64_t const offset = section_offset();
    Unlocked::Break const locked(*unlocked_);
    if (is_ending_) return;
    try {
      on_section(make_section({pid, section, size, offset, numbers_.at(offset)}, settings_));
    } catch (py::error_already_set& raised) {
      keep(std::move(raised));
    }
  }

  SharedSettings settings_;
  PacketNumbers numbers_;
  std::uint64_t pushed_ = 0;
  InUse in_use_;
  Unlocked* unlocked_ = nullptr;  // while it works
  std::exception_ptr raised_;     // the first of the call under way
  bool is_ending_ = false;        // what was raised is no mere failure but an order to stop
};

/// Calls the hook of the class in Python.
class Demultiplexer final : public HookedDemux {
 public:
  using HookedDemux::HookedDemux;
  void on_section(py::object section) override {
    static PyObject* const name = PyUnicode_InternFromString("on_psi_section");
    py::object const self = py::cast(static_cast<HookedDemux*>(this));
    PyObject* const nothing =
        outliving_the_interpreter([&] { return PyObject_CallMethodOneArg(self.ptr(), name, section.ptr()); });
    if (nothing == nullptr) throw py::error_already_set();
    Py_DECREF(nothing);
  }
};

void add_counters(py::module_& module) {
  py::class_<PidCounters>(module, "Counters",
                          "What was received on one PID. Values of pcr are in units of 27 MHz.")
      .def_readonly("packets", &PidCounters::packets, "All of them, those below included.")
      .def_readonly("gaps", &PidCounters::gaps, "Jumps of the continuity_counter that nothing announces.")
      .def_readonly("missing", &PidCounters::missing, "Packets that the gaps have swallowed, 1 to 15 each.")
      .def_readonly("repeated", &PidCounters::repeated, "Packets that are their predecessor once more.")
      .def_readonly("erroneous", &PidCounters::erroneous, "With transport_error_indicator.")
      .def_readonly("scrambled", &PidCounters::scrambled, "Payloads that are scrambled.")
      .def_readonly("sections", &PidCounters::sections, "That came whole.")
      .def_readonly("cut_sections", &PidCounters::cut_sections, "That began and did not come whole.")
      .def_readonly("pcrs", &PidCounters::pcrs, "Packets with a program_clock_reference.")
      .def_readonly("first_pcr", &PidCounters::first_pcr, "Value of the first one, 42 bits.")
      .def_readonly("first_pcr_offset", &PidCounters::first_pcr_offset, "Where its packet is, in bytes.")
      .def_readonly("last_pcr", &PidCounters::last_pcr, "Value of the latest one.")
      .def_readonly("last_pcr_offset", &PidCounters::last_pcr_offset, "Where its packet is, in bytes.");
}

}  // namespace

void add_demux(py::module_& module) {
  add_counters(module);
  py::class_<HookedDemux, Demultiplexer>(
      module, "Demux",
      "From packets to sections, for hosts of their own: derive, override `on_psi_section`, register, "
      "push.\n\n"
      "What the hook raises leaves the call that pushed, once all that was pushed is dealt with; of several "
      "the first. A KeyboardInterrupt or RecursionError ends the call at once. One thread at a time may "
      "use an object.")
      .def(py::init<bool, bool, std::string const&, std::string const&>(), py::kw_only(),
           py::arg("every_section") = true, py::arg("tolerant") = false, py::arg("charset") = "",
           py::arg("charset_always") = "")
      .def("push", &HookedDemux::push, py::arg("data"),
           "Takes whole packets of 188 bytes. Raises Error for anything else.")
      .def("push_pieces", &HookedDemux::push_pieces, py::arg("data"),
           "Takes a stream cut anywhere, with packets of 188, 192 or 204 bytes, and finds the packets.")
      .def("finish", &HookedDemux::finish, "Ends a stream of pieces: what is held of it is dealt with.")
      .def("add_psi_handler", &HookedDemux::add, py::arg("pid"), py::arg("table_id"),
           "Asks for the sections of a table id on a PID.")
      .def("add_usual_handlers", &HookedDemux::add_usual,
           "Asks for the tables that every stream has on the same PIDs.")
      .def("remove_psi_handler", &HookedDemux::remove, py::arg("pid"), py::arg("table_id"),
           "Asks for them no more.")
      .def("count", &HookedDemux::count_pid, py::arg("pid") = py::none(),
           "Counts what arrives on a PID from now on, or on all.")
      .def("counters", &HookedDemux::counters_of, py::arg("pid"), py::return_value_policy::copy,
           "What was counted on a PID so far; None where nobody asked.")
      .def(
          "on_psi_section", [](HookedDemux&, py::object const&) {}, py::arg("section"),
          "The hook: is given each Section. To be overridden.")
      .def_property_readonly("packets", &HookedDemux::packet_count, "Packets so far.")
      .def_property_readonly("skipped_bytes", &HookedDemux::bytes_skipped,
                             "Bytes of pieces so far that belong to no packet.");
}

}  // namespace sivane::python
