// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>
#include <string>

#include "section_builder.h"

namespace sivane::testing {

/// sivane-inspect while it runs. What is waited for has ten seconds.
class ToolProcess {
 public:
  /// Its standard input is a pipe, which stays open until `close_input`.
  explicit ToolProcess(std::string const& arguments) {
    int in[2], out[2];
    if (pipe(in) != 0 || pipe(out) != 0) throw std::runtime_error("no pipe");
    std::string const command = "exec '" SIVANE_INSPECT "' " + arguments;
    process_ = fork();
    if (process_ == 0) {
      dup2(in[0], STDIN_FILENO);
      dup2(out[1], STDOUT_FILENO);
      dup2(out[1], STDERR_FILENO);
      for (int const end : {in[0], in[1], out[0], out[1]}) close(end);
      execl("/bin/sh", "sh", "-c", command.c_str(), nullptr);
      _exit(127);
    }
    close(in[0]);
    close(out[1]);
    input_ = in[1];
    from_tool_ = out[0];
  }
  ToolProcess(ToolProcess const&) = delete;
  ToolProcess& operator=(ToolProcess const&) = delete;
  ~ToolProcess() {
    close_input();
    close(from_tool_);
    if (process_ > 0) {
      kill(process_, SIGKILL);
      waitpid(process_, nullptr, 0);
    }
  }

  void write(Bytes const& bytes) {
    if (::write(input_, bytes.data(), bytes.size()) != std::ssize(bytes))
      throw std::runtime_error("the pipe is full");
  }
  void close_input() {
    if (input_ >= 0) close(input_);
    input_ = -1;
  }
  void signal(int number) const { kill(process_, number); }

  /// Standard output and error so far, once they hold `text`; throws where it does not come.
  std::string const& read_until(std::string const& text) {
    while (output_.find(text) == std::string::npos) {
      if (!read_some()) throw std::runtime_error("ended with: " + output_);
    }
    return output_;
  }
  /// Reads to the end and gives the exit status.
  int wait() {
    while (read_some()) {
    }
    int status = 0;
    waitpid(process_, &status, 0);
    process_ = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  std::string const& output() const { return output_; }

 private:
  bool read_some() {
    pollfd file = {from_tool_, POLLIN, 0};
    if (poll(&file, 1, 10'000) != 1) throw std::runtime_error("nothing came any more after: " + output_);
    char text[4096];
    ssize_t const count = read(from_tool_, text, sizeof text);
    if (count > 0) output_.append(text, static_cast<std::size_t>(count));
    return count > 0;
  }

  pid_t process_ = 0;
  int input_ = -1;
  int from_tool_ = -1;
  std::string output_;
};

}  // namespace sivane::testing
