// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/foundation/trace_log.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <ctime>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace sivane {
namespace {

constexpr char const* time_shape = "9999.99.99,99:99:99,999,";
constexpr std::size_t time_size = 24;

/// The time of a record with a 9 for each digit.
std::string shape_of_time(std::string const& record) {
  std::string text = record.substr(0, time_size);
  for (char& c : text) c = c >= '0' && c <= '9' ? '9' : c;
  return text;
}

std::string zero_x(long number) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "\"0x%08lx\",", number);
  return text.data();
}

/// The present local time to the second, written as records write it and by their clock: that of std::time
/// may be a tick behind.
std::string present_second() {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  std::array<char, 32> text{};
  tm local{};
  std::strftime(text.data(), text.size(), "%Y.%m.%d,%H:%M:%S", localtime_r(&now.tv_sec, &local));
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
    std::string text(1 << 20, '\0');
    ssize_t const got = pread(fileno(file_), text.data(), text.size(), read_);
    read_ += got;
    return text.substr(0, static_cast<std::size_t>(got));
  }

 private:
  std::FILE* file_;
  off_t read_ = 0;
};

TEST_F(TraceLogTest, WritesLevelsFromOneToTheHighest) {
  EXPECT_EQ(trace_log.log_options, 0u);
  EXPECT_EQ(trace_log.log_max_level, 0);
  EXPECT_EQ(trace_log.log_file, 0);
  for (int const max_level : {-1, 0, 3}) {
    open_gate(max_level);
    for (int level = -2; level <= 4; ++level) {
      for (trace_log.log_lock_ready = 0; trace_log.log_lock_ready < 2; ++trace_log.log_lock_ready) {
        EXPECT_EQ(log_write(level, "%d", 1), 0);
        EXPECT_EQ(!written().empty(), 0 < level && level <= max_level) << level << " of " << max_level;
      }
    }
  }
}

TEST_F(TraceLogTest, ClosedOrBadHandleIsSilent) {
  open_gate(9);
  for (int const handle : {1 << 20, -1}) {
    trace_log.log_file = handle;
    EXPECT_EQ(log_write(1, "lost"), 0);
  }
  EXPECT_FALSE(trace_log.is_open(1));
}

TEST_F(TraceLogTest, FieldsFollowTheirOwnOrderForEveryChoice) {
  constexpr std::pair<int, char const*> names[] = {
      {1, "\"error  \","}, {2, "\"warning\","}, {5, "\"info   \","}};
  for (unsigned int choice = 0; choice < 16; ++choice) {
    for (auto const& [level, name] : names) {
      open_gate(9, (choice & 1 ? 0x008u : 0) | (choice & 2 ? 0x004u : 0) | (choice & 4 ? 0x100u : 0) |
                       (choice & 8 ? 0x080u : 0));
      std::string const before = present_second();
      log_write(level, "say \"%s\" %#x", "hi", 255u);
      std::string const record = written();
      ASSERT_EQ(shape_of_time(record), time_shape);
      EXPECT_LE(before, record.substr(0, before.size()));
      EXPECT_LE(record.substr(0, before.size()), present_second());
      EXPECT_EQ(record.substr(time_size), (choice & 1 ? zero_x(getpid()) : "") +
                                              (choice & 2 ? zero_x(syscall(SYS_gettid)) : "") +
                                              (choice & 4 ? std::to_string(level) + "," : "") +
                                              (choice & 8 ? name : "") + "\"say \"hi\" 0xff\"\r\n");
    }
  }
}

TEST_F(TraceLogTest, OverlongMessagesKeepTheLineEnd) {
  for (std::size_t const size : {4067u, 4068u, 4069u, 4095u, 4096u, 10000u}) {
    open_gate(1);
    log_write(1, "%s", std::string(size, 'x').c_str());
    std::string const record = written();
    EXPECT_EQ(record.size(), std::min<std::size_t>(size + time_size + 4, 4095));
    EXPECT_EQ(record.find('\r'), record.size() - 2) << size;
    EXPECT_EQ(record.substr(record.size() - 4), "x\"\r\n") << size;
  }
}

TEST_F(TraceLogTest, ThreadsUnderTheLockWriteWholeLinesInOrder) {
  open_gate(3);
  trace_log.log_lock_ready = 1;
  std::string const filler(200, 'y');
  std::array<int, 4> next{};
  std::vector<std::thread> writers;
  for (std::size_t t = 0; t < next.size(); ++t) {
    writers.emplace_back([&filler, t] {
      for (int i = 0; i < 300; ++i) log_write(3, "%zu %d %s", t, i, filler.c_str());
    });
  }
  for (std::thread& writer : writers) writer.join();
  std::istringstream lines(written());
  for (std::string text; std::getline(lines, text);) {
    ASSERT_EQ(shape_of_time(text), time_shape);
    auto const thread = static_cast<std::size_t>(text.at(time_size + 1) - '0');
    std::string const count = std::to_string(next.at(thread)++);
    EXPECT_EQ(text.substr(time_size), "\"" + std::to_string(thread) + " " + count + " " + filler + "\"\r");
  }
  for (int const count : next) EXPECT_EQ(count, 300);
}

}  // namespace
}  // namespace sivane
