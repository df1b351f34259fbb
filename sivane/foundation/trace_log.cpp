// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/foundation/trace_log.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/syscall.h>
#endif

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <functional>
#include <string_view>
#include <thread>

namespace sivane {

TraceLog trace_log;

namespace {

/// A line of at most 4096 bytes with its terminating zero. What does not fit is cut off, the line's end
/// never.
class Line {
 public:
  void append(char const* format, ...) __attribute__((format(printf, 2, 3))) {
    va_list arguments;
    va_start(arguments, format);
    int const written = std::vsnprintf(bytes_ + size_, sizeof bytes_ - size_, format, arguments);
    va_end(arguments);
    size_ = std::min(size_ + static_cast<std::size_t>(std::max(written, 0)), sizeof bytes_ - 1);
  }
  void finish() {
    constexpr std::string_view end = "\"\r\n";
    size_ = std::min(size_, sizeof bytes_ - 1 - end.size());
    std::memcpy(bytes_ + size_, end.data(), end.size());
    size_ += end.size();
  }
  void write_to(int file) const {
    if (::write(file, bytes_, static_cast<unsigned int>(size_)) < 0) return;  // a lost record goes unnoticed
  }

 private:
  char bytes_[4096];
  std::size_t size_ = 0;
};

void append_local_time(Line& line) {
  timespec now{};
  tm local{};
  clock_gettime(CLOCK_REALTIME, &now);
  localtime_r(&now.tv_sec, &local);
  line.append("%04d.%02d.%02d,%02d:%02d:%02d,%03d,", local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
              local.tm_hour, local.tm_min, local.tm_sec, static_cast<int>(now.tv_nsec / 1000000));
}

/// The number that the system has for the thread, or one of the standard library's where it offers none.
unsigned int thread_number() {
#ifdef __linux__
  return static_cast<unsigned int>(syscall(SYS_gettid));
#else
  return static_cast<unsigned int>(std::hash<std::thread::id>()(std::this_thread::get_id()));
#endif
}

char const* level_name(int level) { return level == 1 ? "error" : level == 2 ? "warning" : "info"; }

void append_chosen_fields(Line& line, int level) {
  unsigned int const chosen = trace_log.log_options;
  if (chosen & TraceLog::process_id) line.append("\"0x%08x\",", static_cast<unsigned int>(getpid()));
  if (chosen & TraceLog::thread_id) line.append("\"0x%08x\",", thread_number());
  if (chosen & TraceLog::level_number) line.append("%d,", level);
  if (chosen & TraceLog::level_text) line.append("\"%-7s\",", level_name(level));
}

}  // namespace

void log_record(int level, char const* format, ...) {
  std::unique_lock lock(trace_log.log_lock, std::defer_lock);
  if (trace_log.log_lock_ready != 0) lock.lock();
  if (!trace_log.is_open(level)) return;

  char message[4096] = "";
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(message, sizeof message, format, arguments);
  va_end(arguments);

  Line line;
  append_local_time(line);
  append_chosen_fields(line, level);
  line.append("\"%s", message);
  line.finish();
  line.write_to(trace_log.log_file);
}

}  // namespace sivane
