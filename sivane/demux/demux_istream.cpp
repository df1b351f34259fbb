// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/demux/demux.h>

#include <istream>

namespace sivane {

bool DemuxIstream::read_buf(unsigned char* buffer, int size, int& got) {
  stream_.read(reinterpret_cast<char*>(buffer), size);
  got = static_cast<int>(stream_.gcount());
  return stream_.good();
}

}  // namespace sivane
