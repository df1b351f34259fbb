// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/dvb_calls.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace inspect {

namespace {

class SystemCalls final : public DvbCalls {};

}  // namespace

int DvbCalls::open(char const* path) { return ::open(path, O_RDWR | O_NONBLOCK | O_CLOEXEC); }

int DvbCalls::ioctl(int file, unsigned long request, void* argument) {
  return ::ioctl(file, request, argument);
}

int DvbCalls::poll(pollfd* files, nfds_t count, int milliseconds) {
  return ::poll(files, count, milliseconds);
}

ssize_t DvbCalls::read(int file, unsigned char* buffer, std::size_t size) {
  return ::read(file, buffer, size);
}

DvbCalls& system_calls() {
  static SystemCalls calls;
  return calls;
}

}  // namespace inspect
