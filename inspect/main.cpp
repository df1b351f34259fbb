// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Shows what is in a transport stream: a host of the library, with the means that any host has.
#include <sivane/foundation/error.h>
#include <unistd.h>

#include <exception>
#include <new>

#include "command_line.h"
#include "console.h"
#include "output.h"
#include "run.h"

namespace {

/// Called where an allocation fails: before `main`, in an object of a library that is made then, nobody could
/// catch it, and streams keep it to themselves and lose part of what they were given.
[[noreturn]] void leave_without_memory() {
  constexpr char line[] = "sivane-inspect: out of memory\n";
  [[maybe_unused]] ssize_t const ignored = write(STDERR_FILENO, line, sizeof line - 1);
  _exit(inspect::unusable);
}

[[gnu::constructor(101)]] void begin() { std::set_new_handler(leave_without_memory); }

}  // namespace

int main(int argc, char** argv) try {
  auto const [options, exit_status] = inspect::read_command_line(argc, argv);
  return options ? inspect::run(*options) : exit_status;
} catch (std::bad_alloc const&) {
  leave_without_memory();
} catch (inspect::OutputLost const& lost) {
  inspect::report("cannot write to standard output: " + lost.reason);
  return inspect::unusable;
} catch (sivane::error const& failure) {
  inspect::report(failure.what());
  return inspect::unusable;
} catch (std::exception const& failure) {
  inspect::report(failure.what());
  return inspect::unusable;
}
