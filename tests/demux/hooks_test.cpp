// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Hooks that throw, and hooks that change what is registered while they run.
#include <gtest/gtest.h>

#include "recording_host.h"

namespace sivane::testing {
namespace {

constexpr int pid = 0x100;
const Bytes a = patterned_section(0x42, 200);
const Bytes b = patterned_section(0x42, 30);
const Bytes first = exact_packet(pid, true, Bytes{0} + part(a, 0, 183));
const Bytes last = make_packet({.pid = pid, .payload = part(a, 183, 200)});
const Bytes filler = make_packet({.pid = pid});
const Bytes short_one = make_packet({.pid = pid, .start = true, .payload = Bytes{0} + b});
/// The end of `a`, and `b` behind it.
const Bytes tail = make_packet({.pid = pid, .start = true, .payload = Bytes{17} + part(a, 183, 200) + b});

struct HostFailure {};

class Hooks : public ::testing::Test {
 protected:
  Hooks() { host.add_psi_handler(pid, 0x42); }

  /// From now on the section hooks (or those of a given name) do this.
  template <class Action>
  void on(std::string const& name, Action action) {
    host.on_call = [=](std::string const& call) {
      if (call.rfind(name, 0) == 0) action();
    };
  }
  void throw_on(std::string const& name) {
    on(name, [] { throw HostFailure(); });
  }
  std::size_t sections() const { return host.sections.size(); }

  PushHost host;
};

TEST_F(Hooks, ExceptionsPassThroughAndEarlierPacketsStay) {
  for (char const* const name : {"ts", "field", "section"}) {
    throw_on(name);
    EXPECT_THROW(host.push(exact_packet(pid, true, Bytes{0} + b)), HostFailure) << name;
  }
  throw_on("section");
  EXPECT_THROW(host.push(first + last), HostFailure);
  EXPECT_TRUE(host.handler(pid, 0x42).in_section);
  EXPECT_EQ(host.handler(pid, 0x42).section_size, 183 + 184);
}

TEST_F(Hooks, AContinuationDeliversAgainAfterAThrow) {
  throw_on("section");
  EXPECT_THROW(host.push(first + last), HostFailure);
  host.on_call = nullptr;
  host.push(filler);
  EXPECT_EQ(host.sections, (Sections{a, a}));
  host.push(filler);
  EXPECT_EQ(sections(), 2u);
}

TEST_F(Hooks, AStartDropsWhatAThrowLeft) {
  throw_on("section");
  EXPECT_THROW(host.push(first + last), HostFailure);
  host.on_call = nullptr;
  host.push(short_one);
  EXPECT_EQ(host.sections, (Sections{a, b}));
}

TEST_F(Hooks, AThrowAtTheStartLeavesTheCurrentHandlerAsItWas) {
  throw_on("section");
  EXPECT_THROW(host.push(short_one), HostFailure);
  EXPECT_EQ(host.pid_handlers.at(pid)->current, nullptr);
  EXPECT_EQ(host.handler(pid, 0x42).section_size, 183);
  host.on_call = nullptr;
  host.push(filler);
  EXPECT_EQ(sections(), 1u);  // no handler is chosen yet
}

TEST_F(Hooks, AThrowingFilterHookGetsItsSectionAgain) {
  host.reset();
  host.add_psi_handler(pid, nullptr, nullptr, 0, 1);
  throw_on("filter");
  EXPECT_THROW(host.push(short_one), HostFailure);
  host.on_call = nullptr;
  host.push(filler + filler);
  EXPECT_EQ(host.filtered.size(), 2u);
}

TEST_F(Hooks, AThrowForEverEndsAtTheBuffersEnd) {
  throw_on("section");
  EXPECT_THROW(host.push(first + last), HostFailure);
  int held = 183 + 184;
  for (; held + 184 <= 8192; held += 184) EXPECT_THROW(host.push(filler), HostFailure);
  EXPECT_EQ(host.handler(pid, 0x42).section_size, held);
  EXPECT_EQ(host.push(filler + filler), 0);
  EXPECT_FALSE(host.handler(pid, 0x42).in_section);
  host.on_call = nullptr;
  host.sections.clear();
  host.push(filler + short_one);
  EXPECT_EQ(host.sections, Sections{b});
}

TEST_F(Hooks, RegisteringTakesEffectFromTheNextPacket) {
  on("section", [this] { host.add_psi_handler(pid + 1, 0x02); });
  const Bytes pmt = patterned_section(0x02, 30);
  host.push(short_one + make_packet({.pid = pid + 1, .start = true, .payload = Bytes{0} + pmt}));
  EXPECT_EQ(host.sections, (Sections{b, pmt}));
}

TEST_F(Hooks, RegisteringAManyOnTheSamePidIsHarmless) {
  host.add_psi_handler(pid, nullptr, nullptr, 0, 1);
  on("section", [this] {
    for (int id = 0; id < 256; ++id) host.add_psi_handler(pid, id);
    host.add_psi_handler(pid, nullptr, nullptr, 0, 2);
  });
  host.push(short_one);
  EXPECT_EQ(host.pid_handlers.at(pid)->psi_handlers.size(), 256u);
  host.on_call = nullptr;
  host.filtered.clear();
  host.push(short_one);
  EXPECT_EQ(host.filtered.size(), 2u);
}

TEST_F(Hooks, AHandlerRemovedByItsHookGetsNoMoreCalls) {
  host.add_psi_handler(pid, 0x46);  // so that the PID stays
  on("section", [this] { host.remove_psi_handler(pid, 0x42); });
  for (Bytes const& stream : {short_one + filler + short_one, first + last + filler, first + tail}) {
    host.sections.clear();
    host.add_psi_handler(pid, 0x42);
    host.push(stream);
    EXPECT_EQ(sections(), 1u);
    EXPECT_EQ(host.pid_handlers.at(pid)->current, nullptr);
  }
}

TEST_F(Hooks, ARemovedAndRegisteredHandlerStartsAfresh) {
  on("section", [this] {
    host.remove_psi_handler(pid, 0x42);
    host.add_psi_handler(pid, 0x42);
  });
  host.push(first + last + filler);
  EXPECT_EQ(sections(), 1u);
  EXPECT_FALSE(host.handler(pid, 0x42).in_section);
  host.push(short_one);
  EXPECT_EQ(host.sections, (Sections{a, b}));
}

TEST_F(Hooks, RemovingThePidOrResettingEndsAllItsCalls) {
  for (char const* const name : {"ts", "section", "filter"}) {
    for (const bool is_reset : {false, true}) {
      for (Bytes const& stream : {short_one + filler + short_one, first + last + filler, first + tail}) {
        host.reset();
        host.sections.clear();
        host.filtered.clear();
        if (name[0] == 's') host.add_psi_handler(pid, 0x42);
        host.add_psi_handler(pid, nullptr, nullptr, 0, 1);
        host.add_psi_handler(pid, nullptr, nullptr, 0, 2);
        on(name, [=, this] { is_reset ? host.reset() : host.remove_psi_handler(pid, 0x42); });
        EXPECT_EQ(host.push(stream), 0);
        EXPECT_TRUE(host.pid_handlers.empty());
        EXPECT_EQ(sections() + host.filtered.size(), name[0] == 't' ? 0u : 1u) << name;
      }
    }
  }
}

TEST_F(Hooks, AThrowAfterRemovingLeavesNothingBehind) {
  on("section", [this] {
    host.reset();
    throw HostFailure();
  });
  EXPECT_THROW(host.push(short_one), HostFailure);
  host.on_call = nullptr;
  host.push(filler + short_one);
  EXPECT_EQ(sections(), 1u);
}

}  // namespace
}  // namespace sivane::testing
