// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sys/types.h>

#include <string>

#include "section_builder.h"

namespace sivane::testing {

/// sivane-inspect while it runs. What is waited for has ten seconds.
class ToolProcess {
 public:
  /// Its standard input is a pipe, which stays open until `close_input`.
  explicit ToolProcess(std::string const& arguments);
  ToolProcess(ToolProcess const&) = delete;
  ToolProcess& operator=(ToolProcess const&) = delete;
  ~ToolProcess();

  void write(Bytes const& bytes);
  /// Waits until all that was written is read.
  void drain() const;
  void close_input();
  void signal(int number) const;

  /// Standard output and error so far, once they hold `text`; throws where it does not come.
  std::string const& read_until(std::string const& text);
  /// Reads to the end and gives the exit status.
  int wait();
  std::string const& output() const { return output_; }

 private:
  bool read_some();

  pid_t process_ = 0;
  int input_ = -1;
  int from_tool_ = -1;
  std::string output_;
};

}  // namespace sivane::testing
