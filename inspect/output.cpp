// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "output.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace inspect {

bool OutputBuffer::is_terminal() const { return isatty(descriptor_) == 1; }

OutputBuffer::int_type OutputBuffer::overflow(int_type c) {
  sync();
  if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
  return sputc(traits_type::to_char_type(c));
}

int OutputBuffer::sync() {
  for (char const* next = pbase(); next < pptr();) {
    ssize_t const count = write(descriptor_, next, static_cast<std::size_t>(pptr() - next));
    if (count < 0 && errno != EINTR) {
      empty();
      throw OutputLost{std::strerror(errno)};
    }
    if (count > 0) next += count;
  }
  empty();
  return 0;
}

}  // namespace inspect
