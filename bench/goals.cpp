// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include "goals.h"

#include <cstdio>

namespace sivane::bench {

namespace {

/// How a ratio of times becomes the figure of a row, and what is good.
enum class Figure { speed, time, speed_of_the_work };

struct Goal {
  char const* work;
  std::vector<char const*> benchmarks;  ///< their names, "name/argument" where one has an argument
  double goal;
  Figure figure;
};

// `speed`: the yardstick's time stands above; `speed_of_the_work`: the ratio upside down. Both are to be
// reached, a `time` not to be passed.
Goal const goals[] = {
    {"PSI/SI alone, everything decoded, to libdvbpsi doing all it can",
     {"libdvbpsi, tables alone, each twice, which it decodes once"},
     2.7,
     Figure::speed},
    {"the same, repetitions skipped on both sides",
     {"libdvbpsi, tables alone, each twice, both decoding once"},
     3.4,
     Figure::speed},
    {"the same, only the three kinds of descriptor that a programme guide needs",
     {"libdvbpsi, tables alone, each twice, three kinds of descriptor, both decoding once"},
     6,
     Figure::speed},
    {"multiplex, hooks alone, to reading one word of each header",
     {"multiplex of 256 MB, hooks alone"},
     1,
     Figure::speed_of_the_work},
    {"multiplex, sections with CRC, to read bandwidth",
     {"multiplex of 256 MB, sections with CRC"},
     0.8,
     Figure::speed_of_the_work},
    {"multiplex, everything decoded, to libdvbpsi",
     {"libdvbpsi, a multiplex with 3 % of such tables"},
     2,
     Figure::speed},
    {"CRC at 192 and 4096 bytes, to the byte table",
     {"CRC a byte at a time, sections of # bytes/192", "CRC a byte at a time, sections of # bytes/4096"},
     40,
     Figure::speed},
    {"dump of tables, to inserting them item by item",
     {"inserting what dumps say, item by item"},
     1.5,
     Figure::speed},
    {"saving into `sivane::dom`, to building the tree in pugixml",
     {"XML, saving an EIT of 1000 events, to pugixml"},
     1.9,
     Figure::time},
    {"writing the document, to pugixml's",
     {"XML, writing an EIT of 1000 events, to pugixml"},
     2.4,
     Figure::time},
};

std::string key_of(benchmark::BenchmarkReporter::Run const& run) {
  return run.run_name.args.empty() ? run.run_name.function_name
                                   : run.run_name.function_name + '/' + run.run_name.args;
}

/// The cells of a row for one comparison.
struct Cells {
  std::string median, range, rounds;
  bool is_reached;
};

std::string two_digits(double number) {
  char text[32];
  std::snprintf(text, sizeof text, "%.2f", number);
  return text;
}

Cells cells(Goal const& goal, benchmark::BenchmarkReporter::Run const& run) {
  bool const upside_down = goal.figure == Figure::speed_of_the_work;
  auto const figure = [&](char const* counter) {
    double const ratio = run.counters.at(counter).value;
    return upside_down ? 1 / ratio : ratio;
  };
  double const median = figure("ratio");
  std::string const range = two_digits(figure(upside_down ? "high" : "low")) + " to " +
                            two_digits(figure(upside_down ? "low" : "high"));
  bool const is_reached = goal.figure == Figure::time ? median <= goal.goal : median >= goal.goal;
  return {two_digits(median), range, std::to_string(run.iterations), is_reached};
}

/// What was not measured says so.
Cells cells(Goal const& goal, char const* benchmark,
            std::map<std::string, benchmark::BenchmarkReporter::Run> const& runs) {
  auto const run = runs.find(benchmark);
  bool const is_there = run != runs.end() && !run->second.error_occurred;
  return is_there ? cells(goal, run->second) : Cells{"not measured", "", "0", false};
}

}  // namespace

/// No name has a letter that means something else in an expression but the '.', which is one of what it
/// matches.
std::string GoalReporter::filter() {
  std::string all = "^(";
  for (Goal const& goal : goals) {
    for (char const* const name : goal.benchmarks) all += std::string(name) + '|';
  }
  all.back() = ')';
  return all;
}

void GoalReporter::ReportRuns(std::vector<Run> const& runs) {
  for (Run const& run : runs) {
    runs_[key_of(run)] = run;
    if (!run.error_occurred) continue;
    std::fprintf(stderr, "%s: FAILED, %s\n", key_of(run).c_str(), run.error_message.c_str());
    failed = true;
  }
}

void GoalReporter::Finalize() {
  std::puts("| work | goal | median | 8 of 10 rounds | rounds | reached |\n|---|---|---|---|---|---|");
  for (Goal const& goal : goals) {
    Cells row{"", "", "", true};
    for (char const* const name : goal.benchmarks) {
      Cells const one = cells(goal, name, runs_);
      char const* const between = row.median.empty() ? "" : " and ";
      row.median += between + one.median;
      row.range += between + one.range;
      row.rounds += between + one.rounds;
      row.is_reached &= one.is_reached;
    }
    std::printf("| %s | %s %g | %s | %s | %s | %s |\n", goal.work,
                goal.figure == Figure::time ? "at most" : "at least", goal.goal, row.median.c_str(),
                row.range.c_str(), row.rounds.c_str(), row.is_reached ? "yes" : "no");
  }
}

}  // namespace sivane::bench
