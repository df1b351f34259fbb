// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// A whole multiplex, of which 3 packets in 100 are wanted: what the drivers add to reading it, what the ways
// beyond the default add to them, and several multiplexes at once.
#include <sivane/demux/demux.h>
#include <sivane/demux/packet_finder.h>
#include <sivane/tables/crc.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <memory>
#include <thread>

#include "compare.h"
#include "streams.h"

namespace {

using sivane::Reassembly;
using sivane::testing::Bytes;
namespace bench = sivane::bench;

constexpr std::size_t packet_size = sivane::ts_packet_size;

/// Larger than the caches.
bench::Stream const& large() {
  static bench::Stream const stream = bench::multiplex_stream(256000000);
  return stream;
}

class Host final : public sivane::DemuxPush {
 public:
  explicit Host(Reassembly mode = Reassembly::first_start, bool checks = true) : checks_(checks) {
    set_reassembly(mode);
    for (int const id : {0x4E, 0x50}) add_psi_handler(bench::eit_pid, id);
    add_psi_handler(bench::pat_pid, 0x00);
    add_psi_handler(bench::nit_pid, 0x40);
    add_psi_handler(bench::sdt_pid, 0x42);
    for (int i = 0; i < bench::services; ++i) add_psi_handler(bench::first_pmt_pid + i, 0x02);
  }
  bool push(Bytes const& bytes) { return push_data(bytes.data(), static_cast<int>(bytes.size())) == 0; }

  std::size_t sections = 0, damaged = 0;

 protected:
  void on_psi_section(int, int, int, unsigned char const* section) override {
    ++sections;
    if (!checks_) return;
    auto const size = static_cast<std::size_t>((section[1] & 0xF) << 8 | section[2]) + 3;
    damaged += sivane::crc_register(section, size) != 0 ? 1u : 0u;
  }

 private:
  bool checks_;
};

class Finder final : public sivane::PacketFinder {
 public:
  explicit Finder(Host& host) : host_(host) {}

 protected:
  void on_packets(sivane::PacketRun const& run) override { host_.push_packets(run); }

 private:
  Host& host_;
};

/// One word of each packet's header: the cache lines that a demultiplexer must touch.
void read_headers(Bytes const& bytes) {
  std::uint32_t sum = 0;
  for (std::size_t at = 0; at < bytes.size(); at += packet_size) {
    std::uint32_t word;
    std::memcpy(&word, &bytes[at], sizeof word);
    sum += word;
  }
  benchmark::DoNotOptimize(sum);
}

void read_all(Bytes const& bytes) {
  std::uint64_t sum = 0;
  for (std::size_t at = 0; at + 8 <= bytes.size(); at += 8) {
    std::uint64_t word;
    std::memcpy(&word, &bytes[at], sizeof word);
    sum += word;
  }
  benchmark::DoNotOptimize(sum);
}

void hooks_alone(benchmark::State& state) {
  Host host;
  host.reset();
  bool whole = true;
  bench::compare(
      state, large().bytes.size(), "the time of reading one word of each header",
      [&] { whole = host.push(large().bytes) && whole; }, [&] { read_headers(large().bytes); });
  if (!whole) state.SkipWithError("the stream was not read to its end");
}

void sections_with_crc(benchmark::State& state) {
  Host host;
  std::size_t rounds = 0;
  bench::compare(
      state, large().bytes.size(), "the time of reading all bytes",
      [&] { rounds += host.push(large().bytes) ? 1u : 0u; }, [&] { read_all(large().bytes); });
  if (host.sections != rounds * large().sections || host.damaged > 0)
    state.SkipWithError("sections were lost");
}

void every_section(benchmark::State& state) {
  Host plain(Reassembly::first_start, false), every(Reassembly::every_section, false);
  bench::compare(
      state, large().bytes.size(), "the time of the first section of each packet",
      [&] { every.push(large().bytes); }, [&] { plain.push(large().bytes); });
  if (every.sections < large().sections) state.SkipWithError("sections were lost");
}

void counting(benchmark::State& state) {
  Host plain(Reassembly::every_section, false), counting(Reassembly::every_section, false);
  counting.count_all();
  bench::compare(
      state, large().bytes.size(), "the time without", [&] { counting.push(large().bytes); },
      [&] { plain.push(large().bytes); });
  if (counting.sections != plain.sections) state.SkipWithError("sections were lost");
}

void finder(benchmark::State& state) {
  constexpr std::size_t piece = 1000 * packet_size;
  Host plain(Reassembly::every_section, false), found(Reassembly::every_section, false);
  Finder finder(found);
  auto const in_pieces = [=](auto take) {
    Bytes const& bytes = large().bytes;
    for (std::size_t at = 0; at < bytes.size(); at += piece)
      take(&bytes[at], std::min<std::size_t>(piece, bytes.size() - at));
  };
  bench::compare(
      state, large().bytes.size(), "the time of push_data of the same pieces",
      [&] { in_pieces([&](unsigned char const* data, std::size_t size) { finder.push(data, size); }); },
      [&] {
        in_pieces([&](unsigned char const* data, std::size_t size) {
          plain.push_data(data, static_cast<int>(size));
        });
      });
  if (found.sections != plain.sections) state.SkipWithError("sections were lost");
}

double seconds_on_the_clock() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// What a round of several threads took: the slowest of them of its processor, and all together on the clock.
struct Round {
  double of_the_slowest = 0, on_the_clock = 0;
};

Round go_through(Bytes const& stream, Host* hosts, std::size_t count) {
  std::vector<double> seconds(count);
  std::vector<std::thread> threads;
  double const start = seconds_on_the_clock();
  for (std::size_t i = 0; i < count; ++i) {
    threads.emplace_back([&, i] {
      auto const work = [&] {
        for (int times = 0; times < 20; ++times) hosts[i].push(stream);
      };
      seconds[i] = bench::seconds_of(work);
    });
  }
  for (std::thread& thread : threads) thread.join();
  return {*std::max_element(seconds.begin(), seconds.end()), seconds_on_the_clock() - start};
}

/// Each thread has a multiplex of its own; the objects lie side by side. What the slowest of them takes of
/// its processor is what one alone takes, unless they wait for each other's cache lines: then throughput
/// grows with the cores, which the clock shows where nothing else runs.
void many_multiplexes(benchmark::State& state) {
  static bench::Stream const stream = bench::multiplex_stream(8000000);
  auto const count = static_cast<std::size_t>(state.range(0));
  auto const hosts = std::make_unique<Host[]>(count);
  std::vector<double> times, times_of_one, throughputs;
  for (auto _ : state) {
    Round const all = go_through(stream.bytes, hosts.get(), count);
    Round const one = go_through(stream.bytes, hosts.get(), 1);
    times.push_back(all.of_the_slowest);
    times_of_one.push_back(one.of_the_slowest);
    throughputs.push_back(static_cast<double>(count) * one.on_the_clock / all.on_the_clock);
    state.SetIterationTime(all.on_the_clock + one.on_the_clock);
  }
  bench::report(state, 20 * stream.bytes.size(), "the time of one alone", times, times_of_one);
  state.counters["throughput"] = bench::quantile(throughputs, 0.5);
  if (hosts[count - 1].sections == 0) state.SkipWithError("sections were lost");
}

}  // namespace

BENCHMARK(hooks_alone)->Name("multiplex of 256 MB, hooks alone")->Apply(bench::timed_by_hand);
BENCHMARK(sections_with_crc)->Name("multiplex of 256 MB, sections with CRC")->Apply(bench::timed_by_hand);
BENCHMARK(every_section)->Name("multiplex of 256 MB, every section")->Apply(bench::timed_by_hand);
BENCHMARK(counting)
    ->Name("multiplex of 256 MB, every section, all PIDs counted")
    ->Apply(bench::timed_by_hand);
BENCHMARK(finder)
    ->Name("multiplex of 256 MB, packets found in pieces of 188 kB")
    ->Apply(bench::timed_by_hand);
BENCHMARK(many_multiplexes)
    ->Name("each of # multiplexes on as many threads")
    ->Arg(1)
    ->Arg(2)
    ->Arg(4)
    ->Apply(bench::timed_by_hand);
