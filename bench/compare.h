// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Two ways to do the same work, timed in turn in one run: on a busy machine their ratio holds where a time
// does not.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <vector>

namespace sivane::bench {

/// Of the processor, used by this thread: what other programs take of it does not count.
inline double seconds_used() {
  timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

template <class Work>
double seconds_of(Work& work) {
  double const start = seconds_used();
  work();
  return seconds_used() - start;
}

/// The value below which `share` of the samples lie.
inline double quantile(std::vector<double> samples, double share) {
  auto const index = static_cast<std::ptrdiff_t>(share * static_cast<double>(samples.size() - 1));
  std::nth_element(samples.begin(), samples.begin() + index, samples.end());
  return samples[static_cast<std::size_t>(index)];
}

/// What both sides took in each iteration, reported as how many times as long `times` are as
/// `yardstick_times`. `bytes` is what each goes through, 0 where a speed in bytes says nothing;
/// `yardstick_name` ends the printed line.
inline void report(benchmark::State& state, std::size_t bytes, char const* yardstick_name,
                   std::vector<double> const& times, std::vector<double> const& yardstick_times) {
  std::vector<double> ratios;
  for (std::size_t i = 0; i < times.size(); ++i) ratios.push_back(times[i] / yardstick_times[i]);
  state.counters["ratio"] = quantile(ratios, 0.5);
  state.counters["low"] = quantile(ratios, 0.1);
  state.counters["high"] = quantile(ratios, 0.9);
  state.counters["bytes"] = static_cast<double>(bytes);
  state.counters["time"] = quantile(times, 0.5);
  state.counters["yardstick_time"] = quantile(yardstick_times, 0.5);
  state.SetLabel(yardstick_name);
}

/// Runs both sides once in every iteration, the first to go changing in turn, and reports them.
template <class Work, class Yardstick>
void compare(benchmark::State& state, std::size_t bytes, char const* yardstick_name, Work work,
             Yardstick yardstick) {
  std::vector<double> times;
  std::vector<double> yardstick_times;
  bool work_first = false;
  for (auto _ : state) {
    work_first = !work_first;
    double yardstick_time = work_first ? 0 : seconds_of(yardstick);
    times.push_back(seconds_of(work));
    if (work_first) yardstick_time = seconds_of(yardstick);
    yardstick_times.push_back(yardstick_time);
    state.SetIterationTime(times.back() + yardstick_time);
  }
  report(state, bytes, yardstick_name, times, yardstick_times);
}

/// Iterations until both sides have taken a second together.
inline void timed_by_hand(benchmark::internal::Benchmark* benchmark) {
  benchmark->UseManualTime()->MinTime(1.0);
}

/// For sides that take a second and more.
inline void five_times(benchmark::internal::Benchmark* benchmark) {
  benchmark->UseManualTime()->Iterations(5);
}

}  // namespace sivane::bench
