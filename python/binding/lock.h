// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <pybind11/pybind11.h>
#include <unistd.h>

namespace sivane::python {

/// Calls what takes the interpreter's lock. Once the interpreter has ended that is the end of every thread
/// but the main one, and would unwind the C++ below, destructors and all: the thread rests here instead,
/// until the process ends.
template <class Call>
auto outliving_the_interpreter(Call call) {
  try {
    return call();
  } catch (...) {  // nothing else comes out of the interpreter
    for (;;) pause();
  }
}

/// Lets other threads of Python run meanwhile.
class Unlocked {
 public:
  Unlocked() : thread_(PyEval_SaveThread()) {}
  Unlocked(Unlocked const&) = delete;
  Unlocked& operator=(Unlocked const&) = delete;
  ~Unlocked() { lock(); }

  /// Has the lock again for a while, in the same thread.
  class Break {
   public:
    explicit Break(Unlocked& of) : of_(of) { of.lock(); }
    Break(Break const&) = delete;
    Break& operator=(Break const&) = delete;
    ~Break() { of_.thread_ = PyEval_SaveThread(); }

   private:
    Unlocked& of_;
  };

 private:
  void lock() {
    outliving_the_interpreter([this] { PyEval_RestoreThread(thread_); });
  }

  PyThreadState* thread_;
};

}  // namespace sivane::python
