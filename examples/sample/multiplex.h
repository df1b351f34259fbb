// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The network of the sample stream: an invention with two television services, and a radio service that
// joins them in the middle of the stream.
#pragma once

#include <vector>

#include "fields.h"

namespace sample {

inline constexpr int network_id = 0xFF14;
inline constexpr int transport_stream_id = 0x0452;

inline constexpr int cat_pid = 0x0001;
inline constexpr int nit_pid = 0x0010;
inline constexpr int sdt_pid = 0x0011;
inline constexpr int eit_pid = 0x0012;
inline constexpr int time_pid = 0x0014;

struct Stream {
  int type;  ///< stream_type
  int pid;
  Bytes descriptors;
};

struct Service {
  int id;  ///< program_number as well
  int type;
  char const* name;
  int pmt_pid;
  Bytes descriptors;            ///< of the program
  std::vector<Stream> streams;  ///< the first one carries the PCR
};

/// The services before (`version` 0) and after (1) the radio service joins.
std::vector<Service> services(int version);

Bytes pat(int version);
Bytes cat();
Bytes pmt(Service const& service);
Bytes nit(int version);
Bytes sdt(int version);

}  // namespace sample
