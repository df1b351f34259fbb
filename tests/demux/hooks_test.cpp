// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Hooks that throw, and hooks that change what is registered while they run.
#include <gtest/gtest.h>

#include "recording_host.h"

namespace sivane::testing {
namespace {

constexpr int pid = 0x100;
Bytes const a = patterned_section(0x42, 200), b = patterned_section(0x42, 30);
Bytes const first = start_packet(pid, part(a, 0, 183));
Bytes const last = make_packet({.pid = pid, .payload = part(a, 183, 200)});
Bytes const filler = make_packet({.pid = pid});
Bytes const short_one = start_packet(pid, b);
/// The end of `a`, and `b` behind it.
Bytes const tail = make_packet({.pid = pid, .start = true, .payload = Bytes{17} + part(a, 183, 200) + b});
/// A section delivered at its start, by a continuation, and by a tail, and packets of the same PID behind.
Bytes const streams[] = {short_one + filler + short_one, first + last + filler, first + tail};

struct HostFailure {};

class Hooks : public ::testing::Test {
 protected:
  Hooks() { host.add_psi_handler(pid, 0x42); }

  /// From now on the hooks whose call begins with `name` do this.
  template <class Action>
  void on(std::string const& name, Action action) {
    host.on_call = [=](std::string const& call) {
      if (call.rfind(name, 0) == 0) action();
    };
  }
  void throws_once(std::string const& name, Bytes const& stream) {
    on(name, [] { throw HostFailure(); });
    EXPECT_THROW(host.push(stream), HostFailure) << name;
    host.on_call = nullptr;
  }

  PushHost host;
};

TEST_F(Hooks, AContinuationDeliversAgainAfterAThrow) {
  host.add_filter(pid, 1);
  throws_once("section", first + last);
  throws_once("filter", filler);
  host.push(filler + filler);
  EXPECT_EQ(host.sections, (Sections{a, a}));
  EXPECT_EQ(host.filtered.size(), 2u);
}

TEST_F(Hooks, AThrowAtTheStartLeavesTheCurrentHandlerAndTheBytesToTheNextStart) {
  throws_once("section", short_one);
  EXPECT_EQ(host.of_pid(pid).current, nullptr);
  EXPECT_EQ(host.of_table(pid, 0x42).section_size, 183);
  host.push(first + last);
  EXPECT_EQ(host.sections, (Sections{b, a}));
}

TEST_F(Hooks, AThrowForEverEndsAtTheBuffersEnd) {
  throws_once("section", first + last);
  int held = 183 + 184;
  for (; held + 184 <= 8192; held += 184) {
    EXPECT_EQ(host.of_table(pid, 0x42).section_size, held);
    throws_once("section", filler);
  }
  EXPECT_EQ(host.push(filler + filler), 0);
  EXPECT_FALSE(host.of_table(pid, 0x42).in_section);
  host.forget();
  host.push(filler + short_one);
  EXPECT_EQ(host.sections, Sections{b});
}

TEST_F(Hooks, RegisteringTakesEffectFromTheNextPacket) {
  host.add_filter(pid, 1);
  on("section", [this] {
    for (int id = 0; id < 256; ++id) host.add_psi_handler(pid, id);
    host.add_filter(pid, 2);
    host.add_psi_handler(pid + 1, 0x02);
    host.on_call = nullptr;
  });
  Bytes const pmt = patterned_section(0x02, 30);
  host.push(short_one + start_packet(pid + 1, pmt));
  EXPECT_EQ(host.sections, (Sections{b, pmt}));
  host.forget();
  host.push(short_one);
  EXPECT_EQ(host.filtered.size(), 2u);
}

TEST_F(Hooks, AFilterThatAFiltersHookAddsTakesPartFromTheNextPacket) {
  host.add_filter(pid, 1);
  on("filter", [this] { host.add_filter(pid, 1); });
  for (std::size_t const filters : {1u, 2u, 4u}) {
    host.forget();
    host.push(tail);
    EXPECT_EQ(host.filtered.size(), filters);
  }
}

TEST_F(Hooks, ATableAddedBehindATailTakesPartAtOnce) {
  Bytes const other = patterned_section(0x46, 30);
  Bytes const next =
      make_packet({.pid = pid, .start = true, .payload = Bytes{17} + part(a, 183, 200) + other});
  on("section", [this] { host.add_psi_handler(pid, 0x46); });
  host.push(first + next);
  EXPECT_EQ(host.sections, (Sections{a, other}));
}

TEST_F(Hooks, AHandlerRemovedByItsHookGetsNoMoreCalls) {
  host.add_psi_handler(pid, 0x46);  // so that the PID stays
  on("section", [this] { host.remove_psi_handler(pid, 0x42); });
  for (Bytes const& stream : streams) {
    host.forget();
    host.add_psi_handler(pid, 0x42);
    host.push(stream);
    EXPECT_EQ(host.sections.size(), 1u);
    EXPECT_EQ(host.of_pid(pid).current, nullptr);
  }
}

TEST_F(Hooks, ARemovedAndRegisteredHandlerStartsAfresh) {
  on("section", [this] {
    host.remove_psi_handler(pid, 0x42);
    host.add_psi_handler(pid, 0x42);
  });
  host.push(first + last + filler);
  EXPECT_FALSE(host.of_table(pid, 0x42).in_section);
  host.push(short_one);
  EXPECT_EQ(host.sections, (Sections{a, b}));
}

TEST_F(Hooks, RemovingThePidOrResettingEndsAllItsCalls) {
  for (std::string const name : {"ts", "section", "filter"}) {
    for (int const way : {0, 1, 2}) {
      for (Bytes const& stream : streams) {
        host.reset();
        host.forget();
        if (name == "section") host.add_psi_handler(pid, 0x42);
        for (unsigned long const id : {1ul, 2ul}) host.add_filter(pid, id);
        bool const is_thrown = way == 2 && name != "ts";
        on(name, [=, this] {
          way == 0 ? host.remove_psi_handler(pid, 0x42) : host.reset();
          if (is_thrown) throw HostFailure();
        });
        try {
          EXPECT_EQ(host.push(stream), 0);
          EXPECT_FALSE(is_thrown);
        } catch (HostFailure const&) {
          host.push(stream);
        }
        EXPECT_TRUE(host.pid_handlers.empty());
        EXPECT_EQ(host.sections.size() + host.filtered.size(), name == "ts" ? 0u : 1u) << name;
      }
    }
  }
}

}  // namespace
}  // namespace sivane::testing
