// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The main of a benchmark program: prints a sentence for each comparison, or with `--goals` a table of those
// that have one.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "goals.h"

namespace {

class RatioReporter final : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(Context const&) override { return true; }
  void ReportRuns(std::vector<Run> const& runs) override {
    for (Run const& run : runs) report(run);
  }
  bool failed = false;

 private:
  void report(Run const& run) {
    std::string const name = name_of(run);
    if (run.error_occurred) {
      std::printf("%s: FAILED, %s\n", name.c_str(), run.error_message.c_str());
      failed = true;
      return;
    }
    std::printf("%s: %.2fx %s (8 of 10 rounds: %.2f to %.2f; %s)\n", name.c_str(), number(run, "ratio"),
                run.report_label.c_str(), number(run, "low"), number(run, "high"), both_sides(run).c_str());
    print_if_counted(run, "allocations", "%s: %.2f allocations a descriptor\n");
    print_if_counted(run, "sections", "%s: %.0f sections a second\n");
    print_if_counted(run, "throughput", "%s: %.2fx the throughput of one, by the clock\n");
    std::fflush(stdout);
  }
  static std::string both_sides(Run const& run) {
    double const bytes = number(run, "bytes");
    double const time = number(run, "time");
    double const yardstick_time = number(run, "yardstick_time");
    char text[80];
    if (bytes > 0) {
      std::snprintf(text, sizeof text, "%.0f against %.0f MB/s", bytes / time / 1e6,
                    bytes / yardstick_time / 1e6);
    } else {
      std::snprintf(text, sizeof text, "%.3f against %.3f ms", time * 1e3, yardstick_time * 1e3);
    }
    return text;
  }
  static void print_if_counted(Run const& run, char const* counter, char const* format) {
    auto const found = run.counters.find(counter);
    if (found != run.counters.end()) std::printf(format, name_of(run).c_str(), found->second.value);
  }
  /// The argument of a run stands where its name has a '#'.
  static std::string name_of(Run const& run) {
    std::string name = run.run_name.function_name;
    std::size_t const place = name.find('#');
    return place == std::string::npos ? name : name.replace(place, 1, run.run_name.args);
  }
  static double number(Run const& run, char const* name) { return run.counters.at(name).value; }
};

/// Whether `--goals` was given, which benchmark does not know and must not see.
bool take_goals(int& argc, char** argv) {
  char** const end = std::remove_if(argv + 1, argv + argc,
                                    [](char const* word) { return std::string_view(word) == "--goals"; });
  bool const was_given = end != argv + argc;
  argc = static_cast<int>(end - argv);
  return was_given;
}

}  // namespace

int main(int argc, char** argv) {
  bool const only_goals = take_goals(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  if (only_goals) {
    sivane::bench::GoalReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter, sivane::bench::GoalReporter::filter());
    return reporter.failed ? 1 : 0;
  }
  RatioReporter reporter;
  std::size_t const run = benchmark::RunSpecifiedBenchmarks(&reporter);
  return run > 0 && !reporter.failed ? 0 : 1;
}
