// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Internal: the trace log. Nothing in the library opens its gate, and none of this is exported; a build that
// wants a trace gives the items of `trace_log` other values.
#pragma once

#include <mutex>

namespace sivane {

/// The log's process-wide state. All of it starts as zero, so that the gate is closed at every level.
struct TraceLog {
  unsigned int log_options = 0;  ///< optional fields of a record: bits of `Field`
  std::mutex log_lock;           ///< serialises the records once `log_lock_ready` is not 0
  int log_max_level = 0;         ///< the highest level that is written
  int log_file = 0;              ///< file descriptor of the records; -1 means no output
  int log_lock_ready = 0;

  enum Field : unsigned int {
    process_id = 0x008,
    thread_id = 0x004,
    level_number = 0x100,
    level_text = 0x080,
  };

  bool is_open(int level) const { return log_file != -1 && 0 < level && level <= log_max_level; }
};

extern TraceLog trace_log;

/// Writes one record: tests the gate under the lock, then formats.
void log_record(int level, char const* format, ...);

/// Writes one record to the trace log; level 1 is an error, 2 a warning, any other one information. Always 0.
/// A closed gate costs a few comparisons: it is on the path of every packet.
template <class... Arguments>
inline int log_write(int level, char const* format, Arguments... arguments) {
  if (trace_log.log_lock_ready != 0 || trace_log.is_open(level)) log_record(level, format, arguments...);
  return 0;
}

}  // namespace sivane
