// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#pragma once

#include <sivane/catalogue/catalogue.h>

#include <cstdio>
#include <string>

#include "heap_block.h"
#include "section_text.h"

namespace sivane::testing {

/// What is told of sections of an EIT of service 7 in stream 2 of network 1.
struct EitText {
  int table_id = 0x50;
  int version = 0;
  int number = 0;
  int last = 0;
  int last_in_segment = 0;
};

/// The section in the notation of `assemble`; `events` in it too.
inline std::string eit_text(EitText const& eit, std::string const& events) {
  char head[80];
  std::snprintf(head, sizeof head, "%02X F( 0007 %02X %02X %02X 0002 0001 %02X %02X ", eit.table_id,
                0xC1 | eit.version << 1, eit.number, eit.last, eit.last_in_segment, eit.table_id);
  return head + events + " crc )";
}

/// An event of an hour with descriptors.
inline std::string event_text(int event, std::string const& descriptors) {
  char head[40];
  std::snprintf(head, sizeof head, "%04X E8A8 180000 010000 0( ", event & 0xFFFF);
  return head + descriptors + " ) ";
}

inline std::string titled(int event, std::string const& title) {
  return event_text(event, "4D[ \"eng\" [\"" + title + "\"] [] ]");
}

inline catalogue::Changes add(catalogue::Catalogue& catalogue, std::string const& text, int pid = -1) {
  Bytes const section = assemble(text);
  return catalogue.add(pid, HeapBlock(section).data(), section.size());
}

inline catalogue::ServiceKey const service_7 = {1, 2, 7};

}  // namespace sivane::testing
