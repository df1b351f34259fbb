// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/progress.h"

#include <unistd.h>

#include "console.h"
#include "text/visible.h"

namespace inspect {

namespace {

constexpr std::chrono::milliseconds between_lines(200);

}  // namespace

Progress::Progress(Source const& source, Options const& options)
    : name_(visible(source.name())),
      size_(source.size()),
      is_shown_(size_ > 0 && !options.follow && isatty(STDERR_FILENO) == 1 &&
                (isatty(STDOUT_FILENO) == 0 || options.command->prints_at_end())),
      next_(std::chrono::steady_clock::now() + between_lines) {}

void Progress::add(std::size_t bytes) {
  read_ += static_cast<long long>(bytes);
  if (!is_shown_ || std::chrono::steady_clock::now() < next_) return;
  next_ = std::chrono::steady_clock::now() + between_lines;
  constexpr long long megabyte = 1'000'000;
  show_progress(name_ + ": " + std::to_string(100 * read_ / size_) + " % of " + grouped(size_ / megabyte) +
                " MB");
}

}  // namespace inspect
