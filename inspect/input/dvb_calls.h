// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <poll.h>
#include <sys/types.h>

#include <cstddef>

namespace inspect {

/// The calls of the system that a DVB adapter is read with: a test has a stand-in for the device. They answer
/// as the system's do, with `errno`.
class DvbCalls {
 public:
  virtual int open(char const* path);
  virtual int ioctl(int file, unsigned long request, void* argument);
  virtual int poll(pollfd* files, nfds_t count, int milliseconds);
  virtual ssize_t read(int file, unsigned char* buffer, std::size_t size);

 protected:
  ~DvbCalls() = default;
};

/// Those of the system itself.
DvbCalls& system_calls();

}  // namespace inspect
