// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/foundation/trace_log.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <string>
#include <thread>

namespace sivane {
namespace {

constexpr std::size_t time_size = 24;

template <class... Values>
std::string formatted(char const* format, Values... values) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), format, values...);
  return text.data();
}

/// The present local time to the second by the records' clock: that of std::time may be a tick behind.
std::string present_second() {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  std::array<char, 32> text{};
  tm local{};
  std::strftime(text.data(), text.size(), "%Y.%m.%d,%H:%M:%S,", localtime_r(&now.tv_sec, &local));
  return text.data();
}

class TraceLogTest : public ::testing::Test {
 protected:
  TraceLogTest() : file_(std::tmpfile()) {}
  ~TraceLogTest() override {
    trace_log.log_options = 0;
    trace_log.log_max_level = trace_log.log_file = trace_log.log_lock_ready = 0;
    std::fclose(file_);
  }

  void open_gate(int max_level, unsigned int options = 0) {
    trace_log.log_file = fileno(file_);
    trace_log.log_max_level = max_level;
    trace_log.log_options = options;
  }

  /// All that was written since the last call.
  std::string written() {
    std::string text(1 << 13, '\0');
    ssize_t const got = pread(fileno(file_), text.data(), text.size(), read_);
    read_ += got;
    return text.substr(0, static_cast<std::size_t>(got));
  }

 private:
  std::FILE* file_;
  off_t read_ = 0;
};

TEST_F(TraceLogTest, WritesLevelsFromOneToTheHighest) {
  EXPECT_FALSE(trace_log.log_options != 0 || trace_log.log_max_level != 0 || trace_log.log_file != 0);
  for (int const max_level : {-1, 0, 3}) {
    open_gate(max_level);
    for (int level = -2; level <= 4; ++level) {
      for (trace_log.log_lock_ready = 0; trace_log.log_lock_ready < 2; ++trace_log.log_lock_ready) {
        EXPECT_EQ(log_write(level, "%d", 1), 0);
        EXPECT_EQ(!written().empty(), 0 < level && level <= max_level) << level << " of " << max_level;
      }
    }
  }
  trace_log.log_file = -1;
  EXPECT_FALSE(trace_log.is_open(1));
}

TEST_F(TraceLogTest, FieldsFollowTheirOwnOrderForEveryChoice) {
  char const* const names[] = {"", "error  ", "warning", "info   "};
  for (unsigned int choice = 0; choice < 16; ++choice) {
    for (int const level : {1, 2, 3}) {
      open_gate(9, (choice & 1) << 3 | (choice & 2) << 1 | (choice & 4) << 6 | (choice & 8) << 4);
      std::string const before = present_second();
      log_write(level, "say \"%s\" %#x", "hi", 255u);
      std::string const record = written();
      std::string const time = record.substr(0, before.size());
      EXPECT_TRUE(before <= time && time <= present_second()) << record;
      EXPECT_EQ(record.substr(time_size - 1),
                "," + (choice & 1 ? formatted("\"0x%08x\",", getpid()) : "") +
                    (choice & 2 ? formatted("\"0x%08lx\",", syscall(SYS_gettid)) : "") +
                    (choice & 4 ? formatted("%d,", level) : "") +
                    (choice & 8 ? formatted("\"%s\",", names[level]) : "") + "\"say \"hi\" 0xff\"\r\n");
    }
  }
}

TEST_F(TraceLogTest, OverlongMessagesKeepTheLineEnd) {
  for (std::size_t const size : {4067u, 4068u, 4069u, 4095u, 4096u, 10000u}) {
    open_gate(1);
    log_write(1, "%s", std::string(size, 'x').c_str());
    std::string const record = written();
    EXPECT_EQ(record.size(), std::min<std::size_t>(size + time_size + 4, 4095));
    EXPECT_EQ(record.find("x\"\r\n"), record.size() - 4) << size;
  }
}

TEST_F(TraceLogTest, WaitsForTheLock) {
  open_gate(3);
  trace_log.log_lock_ready = 1;
  std::unique_lock held(trace_log.log_lock);
  std::thread writer([] { log_write(3, "x"); });
  std::this_thread::sleep_for(std::chrono::milliseconds(20));
  EXPECT_EQ(written(), "");
  held.unlock();
  writer.join();
  EXPECT_NE(written(), "");
}

}  // namespace
}  // namespace sivane
