// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <stdexcept>
#include <thread>

namespace sivane::python {

/// Keeps others away from an object that works without the interpreter's lock. To be used with the lock held.
class InUse {
 public:
  /// Throws where the object works or is read.
  class Claim {
   public:
    explicit Claim(InUse& by) : by_(by) {
      if (by.is_in_use_ || by.readers_ > 0) throw std::runtime_error("the object is at work already");
      by.is_in_use_ = true;
      by.owner_ = std::this_thread::get_id();
    }
    Claim(Claim const&) = delete;
    Claim& operator=(Claim const&) = delete;
    ~Claim() { by_.is_in_use_ = false; }

   private:
    InUse& by_;
  };

  /// Of those that leave the object as it is: what they make lets the collector run, and with it anything.
  class Reading {
   public:
    /// Throws where the object works.
    explicit Reading(InUse& by) : by_(by) {
      if (by.is_in_use_) throw std::runtime_error("the object is at work in another thread");
      ++by.readers_;
    }
    Reading(Reading const&) = delete;
    Reading& operator=(Reading const&) = delete;
    ~Reading() { --by_.readers_; }

   private:
    InUse& by_;
  };

  /// Throws where it works for another thread.
  void check() const {
    if (is_in_use_ && owner_ != std::this_thread::get_id()) {
      throw std::runtime_error("the object is at work in another thread");
    }
  }

 private:
  bool is_in_use_ = false;
  int readers_ = 0;
  std::thread::id owner_;
};

}  // namespace sivane::python
