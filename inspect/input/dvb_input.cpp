// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/dvb_input.h"

#include <charconv>
#include <map>
#include <set>
#include <string_view>

#include "console.h"
#include "input/command_host.h"
#include "input/dvb_filter.h"
#include "input/losses.h"
#include "input/source.h"

namespace inspect {

namespace {

constexpr std::string_view scheme = "dvb://";

bool is_number(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

std::string device_of(std::string const& source) {
  std::string_view const place = std::string_view(source).substr(scheme.size());
  std::size_t const slash = place.find('/');
  std::string_view const adapter = place.substr(0, slash);
  std::string_view const demux = slash == std::string_view::npos ? "0" : place.substr(slash + 1);
  if (!is_number(adapter) || !is_number(demux))
    throw NoInput(source + " is not dvb://ADAPTER[/DEMUX] in numbers");
  return "/dev/dvb/adapter" + std::string(adapter) + "/demux" + std::string(demux);
}

/// Polls a filter for each PID that is registered. When tables name further PIDs a turn of the driver ends,
/// and the next begins with these.
class Host final : public CommandHost<sivane::Demux2> {
 public:
  Host(Options const& options, Command& command, RunEnd& end, DvbCalls& calls)
      : CommandHost(options, command),
        options_(options),
        end_(end),
        calls_(calls),
        device_(device_of(options.source)) {}

  void run() {
    while (!is_over()) {
      open_filters();
      start();
    }
  }

  void tell_losses() const {
    long long overflows = 0;
    for (auto const& [pid, filter] : filters_) overflows += filter.overflows();
    if (overflows > 0) conclude(device_ + ": " + counted(overflows, "overflow") + " of the kernel's buffer");
    report_losses(*this);
  }

 private:
  bool is_over() const { return end_.has_come() || (options_.packets && packets_ >= *options_.packets); }
  bool end_of_input() override {
    return is_over() || filters_.size() + refused_.size() < pid_handlers.size();
  }
  long long offset() const override { return -1; }

  void open_filters() {
    for (auto const& [pid, handler] : pid_handlers) {
      if (!filters_.contains(pid) && !refused_.contains(pid)) open_filter(pid);
    }
  }

  /// An adapter may have fewer filters than there are tables: what it can give is shown.
  void open_filter(int pid) try {
    filters_.try_emplace(pid, calls_, device_, pid);
  } catch (NoInput const& fault) {
    if (filters_.empty()) throw;
    report(fault.what());
    refused_.insert(pid);
  }

  bool read_buf(unsigned char*, int, int&) override { return false; }  // of the drivers without filters
  bool read_buf(int pid, unsigned char* buffer, int size, int& got) override {
    auto const filter = filters_.find(pid);
    got = 0;
    bool const is_read = filter != filters_.end() && !is_over() &&
                         filter->second.read({buffer, static_cast<std::size_t>(size)});
    if (!is_read) return false;
    ++packets_;
    was_any_read_ = true;
    got = size;
    return true;
  }

  /// After each turn: where nothing was there, something is waited for.
  void idle() override {
    if (!was_any_read_) {
      std::vector<pollfd> files;
      for (auto const& [pid, filter] : filters_) files.push_back({filter.file(), POLLIN, 0});
      end_.wait(files, std::chrono::hours(1), [this](pollfd* all, nfds_t count, int milliseconds) {
        return calls_.poll(all, count, milliseconds);
      });
    }
    was_any_read_ = false;
  }

  Options const& options_;
  RunEnd& end_;
  DvbCalls& calls_;
  std::string device_;
  std::map<int, DvbFilter> filters_;  // by PID
  std::set<int> refused_;             // PIDs without one
  long long packets_ = 0;
  bool was_any_read_ = false;
};

}  // namespace

bool is_dvb(std::string const& source) { return source.starts_with(scheme); }

void read_dvb(Options const& options, Command& command, RunEnd& end, DvbCalls& calls) {
  Host host(options, command, end, calls);
  host.run();
  host.tell_losses();
}

}  // namespace inspect
