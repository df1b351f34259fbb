// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/ts_input.h"

#include <sivane/demux/packet_finder.h>

#include <algorithm>
#include <exception>
#include <vector>

#include "console.h"
#include "input/command_host.h"
#include "input/losses.h"
#include "input/progress.h"
#include "input/skipped_bytes.h"

namespace inspect {

namespace {

using Host = CommandHost<sivane::DemuxPush>;

class Finder final : public sivane::PacketFinder {
 public:
  Finder(Options const& options, sivane::DemuxPush& host) : wanted_(options.packets), host_(host) {}

  bool has_enough() const { return wanted_ && pushed_ >= *wanted_; }
  void tell_skipped() { skipped_.tell_sum(); }

 private:
  void on_packets(sivane::PacketRun const& run) override {
    skipped_.tell();
    sivane::PacketRun wanted = run;
    if (wanted_) wanted.count = static_cast<int>(std::min<long long>(run.count, *wanted_ - pushed_));
    pushed_ += wanted.count;
    host_.push_packets(wanted);
  }

  void on_skipped(std::uint64_t offset, std::uint64_t size) override {
    if (!has_enough()) skipped_.add(offset, size);
  }

  std::optional<long long> wanted_;
  sivane::DemuxPush& host_;
  long long pushed_ = 0;
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

}  // namespace

void read_ts(Source& source, Options const& options, Command& command) {
  Host host(options, command);
  if (command.wants_packets()) host.count_all();
  Finder finder(options, host);
  std::exception_ptr const fault = find_packets(source, options, finder);
  if (command.wants_packets()) command.take_packets(counts_of(host));
  report_losses(host);
  if (fault) std::rethrow_exception(fault);
}

}  // namespace inspect
