// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "input/file_source.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>

namespace inspect {

namespace {

constexpr std::chrono::milliseconds between_looks(100);  // at a file that may grow

/// Without waiting for the writer of a named pipe: that is `read`'s part, which a signal can end.
FileDescriptor open_file(std::string const& name) {
  if (name == "-") return FileDescriptor(dup(STDIN_FILENO));
  return FileDescriptor(open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
}

}  // namespace

FileSource::FileSource(std::string const& name, bool follow, RunEnd& end)
    : name_(shown_name(name)), follow_(follow), end_(end), file_(open_file(name)) {
  struct stat status = {};
  if (file_.get() < 0 || fstat(file_.get(), &status) != 0) {
    throw NoInput("cannot open " + name_ + ": " + std::strerror(errno));
  }
  if (S_ISDIR(status.st_mode)) throw NoInput(name_ + " is a directory");
  if (S_ISREG(status.st_mode)) size_ = status.st_size;
}

std::size_t FileSource::read(std::span<unsigned char> buffer) {
  pollfd file = {file_.get(), POLLIN, 0};
  while (!end_.has_come()) {
    if (!end_.wait({&file, 1})) continue;
    ssize_t const count = ::read(file_.get(), buffer.data(), buffer.size());
    if (count > 0) return static_cast<std::size_t>(count);
    if (count == 0 && !follow_) return 0;
    if (count == 0) {
      end_.wait({}, between_looks);
    } else if (errno != EINTR && errno != EAGAIN) {
      throw InputFault(name_ + " cannot be read on: " + std::strerror(errno));
    }
  }
  return 0;
}

}  // namespace inspect
