// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <poll.h>

#include <chrono>
#include <functional>
#include <optional>
#include <span>

namespace inspect {

/// What ends a run before its input does: SIGINT, SIGTERM, or its time. One object a program. The first
/// signal asks for the end, the second is the system's.
class RunEnd {
 public:
  using Clock = std::chrono::steady_clock;
  using Poll = std::function<int(pollfd*, nfds_t, int)>;

  /// `before_waiting` is called when there is nothing to read yet: what was found is to be shown then.
  RunEnd(std::optional<double> seconds, std::function<void()> before_waiting);

  bool has_come() const;
  /// Waits until one of the files can be read, `longest` at most. False where the run is over, or the time.
  /// `poll` is the system's, or stands for it.
  bool wait(std::span<pollfd> files, std::chrono::milliseconds longest = std::chrono::hours(1),
            Poll const& poll = ::poll);

 private:
  std::optional<Clock::time_point> deadline_;
  std::function<void()> before_waiting_;
};

}  // namespace inspect
