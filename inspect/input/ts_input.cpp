// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/ts_input.h"

#include <sivane/demux/packet_finder.h>

#include <algorithm>
#include <chrono>
#include <exception>
#include <vector>

#include "console.h"
#include "input/command_host.h"
#include "input/losses.h"
#include "input/packet_sink.h"
#include "input/progress.h"
#include "input/skipped_bytes.h"

namespace inspect {

namespace {

/// Gives the sections of packets to a command.
class Host final : public CommandHost<sivane::DemuxPush>, public PacketSink {
 public:
  using CommandHost::CommandHost;
  void take(sivane::PacketRun const& run) override { push_packets(run); }
};

class Finder final : public sivane::PacketFinder {
 public:
  Finder(Options const& options, PacketSink& sink) : wanted_(options.packets), sink_(sink) {}

  bool has_enough() const { return wanted_ && pushed_ >= *wanted_; }
  void tell_skipped() { skipped_.tell_sum(); }
  void note_arrival() {
    auto const now = std::chrono::system_clock::now().time_since_epoch();
    sink_.take_arrival(std::chrono::duration_cast<std::chrono::nanoseconds>(now).count());
  }

 private:
  void on_packets(sivane::PacketRun const& run) override {
    skipped_.tell();
    sivane::PacketRun wanted = run;
    if (wanted_) wanted.count = static_cast<int>(std::min<long long>(run.count, *wanted_ - pushed_));
    pushed_ += wanted.count;
    if (told_errors_ != sync_byte_errors)
      tell_sink(run.offset, 0);  // where bytes were lost, none are skipped
    sink_.take(wanted);
  }

  void on_skipped(std::uint64_t offset, std::uint64_t size) override {
    if (has_enough()) return;
    skipped_.add(offset, size);
    tell_sink(offset, size);
  }

  void tell_sink(std::uint64_t offset, std::uint64_t size) {
    told_errors_ = sync_byte_errors;
    sink_.take_skipped({offset, size, sync_byte_errors, sync_losses});
  }

  std::optional<long long> wanted_;
  PacketSink& sink_;
  long long pushed_ = 0;
  std::uint64_t told_errors_ = 0;
  SkippedBytes skipped_;
};

[[noreturn]] void refuse_without_packets(Source const& source, std::uint64_t bytes) {
  if (bytes > 0) {
    throw NoInput(source.name() + " is no transport stream: no packet was found in " +
                  counted(static_cast<long long>(bytes), "byte"));
  }
  throw NoInput(source.size() == 0 ? source.name() + " is empty" : "nothing came from " + source.name());
}

/// Gives the fault that the source ended with, null if there was none.
std::exception_ptr push_all(Source& source, Options const& options, Finder& finder) try {
  std::vector<unsigned char> block(4 * Source::smallest_buffer);
  Progress progress(source, options);
  while (!finder.has_enough()) {
    std::size_t const size = source.read(block);
    if (size == 0) break;
    progress.add(size);
    if (source.is_live()) finder.note_arrival();
    finder.push(block.data(), size);
  }
  return nullptr;
} catch (InputFault const&) {
  return std::current_exception();
}

/// What came before a fault of the source is shown and counted as if it had ended there.
std::exception_ptr find_packets(Source& source, Options const& options, Finder& finder) {
  std::exception_ptr fault = push_all(source, options, finder);
  std::uint64_t const bytes = finder.next_offset();
  finder.flush();
  if (finder.packets == 0 && !finder.has_enough() && !fault) refuse_without_packets(source, bytes);
  finder.tell_skipped();
  return fault;
}

/// For a command that looks at the packets by itself.
void read_packets_for(PacketSink& sink, Source& source, Options const& options) {
  Finder finder(options, sink);
  if (std::exception_ptr const fault = find_packets(source, options, finder)) std::rethrow_exception(fault);
}

}  // namespace

void read_ts(Source& source, Options const& options, Command& command) {
  if (PacketSink* const sink = command.packet_sink()) return read_packets_for(*sink, source, options);
  Host host(options, command);
  if (command.wants_packets()) host.count_all();
  Finder finder(options, host);
  std::exception_ptr const fault = find_packets(source, options, finder);
  if (command.wants_packets()) command.take_packets(counts_of(host));
  report_losses(host);
  if (fault) std::rethrow_exception(fault);
}

}  // namespace inspect
