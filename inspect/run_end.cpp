// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "run_end.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <vector>

namespace inspect {

namespace {

volatile sig_atomic_t signal_came = 0;
int signal_pipe[2] = {-1, -1};  // readable once a signal came, so that none falls between a look and a wait

void note_signal(int) {
  int const before = errno;
  signal_came = 1;
  [[maybe_unused]] ssize_t const ignored = write(signal_pipe[1], "", 1);
  errno = before;
}

void handle_signals() {
  if (pipe2(signal_pipe, O_CLOEXEC | O_NONBLOCK) != 0)
    throw std::system_error(errno, std::generic_category(), "pipe");
  struct sigaction action = {};
  action.sa_handler = note_signal;
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  for (int const signal : {SIGINT, SIGTERM}) sigaction(signal, &action, nullptr);
}

}  // namespace

RunEnd::RunEnd(std::optional<double> seconds, std::function<void()> before_waiting)
    : before_waiting_(std::move(before_waiting)) {
  if (seconds) {
    deadline_ =
        Clock::now() + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(*seconds));
  }
  handle_signals();
}

bool RunEnd::has_come() const { return signal_came != 0 || (deadline_ && Clock::now() >= *deadline_); }

bool RunEnd::wait(std::span<pollfd> files, std::chrono::milliseconds longest, Poll const& poll) {
  if (has_come()) return false;
  if (poll(files.data(), files.size(), 0) > 0) return true;
  before_waiting_();
  std::vector<pollfd> watched(files.begin(), files.end());
  watched.push_back({signal_pipe[0], POLLIN, 0});
  if (deadline_) {
    // Rounded up, so that a wait never ends a moment before its time.
    auto const left = std::chrono::ceil<std::chrono::milliseconds>(*deadline_ - Clock::now());
    longest = std::clamp(left, std::chrono::milliseconds(0), longest);
  }
  poll(watched.data(), watched.size(), static_cast<int>(longest.count()));
  std::copy_n(watched.begin(), files.size(), files.begin());
  return !has_come() && std::ranges::any_of(files, [](pollfd const& file) { return file.revents != 0; });
}

}  // namespace inspect
