// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The frame of short-form sections, through a table of the test's own.
#include <gtest/gtest.h>
#include <sivane/tables/section.h>

#include <cstdint>
#include <sstream>

#include "expect_error.h"
#include "heap_block.h"

namespace sivane {
namespace {

using testing::Bytes;
using testing::HeapBlock;
using testing::operator+;
using testing::hex;
using testing::throws;

class Probe final : public PsiBase {
 public:
  using PsiBase::Parse;
  bool accepts_syntax = true, accepts_id = true, accepts_body = true;
  mutable std::vector<std::string> calls;
  unsigned char const* body = nullptr;

  char const* get_table_id_text() const override { return "probe"; }
  void _reset() override {}
  void _parse(void*) override {}
  void _parse(unsigned char const* bytes) override {
    calls.push_back("body");
    body = bytes;
    if (!accepts_body) throw error("body refused");
  }
  bool _save_section(void*, void*) const override { return false; }
  bool is_valid_tablesid() const override {
    calls.push_back("id " + std::to_string(table_id));
    return accepts_id;
  }
  bool is_syntax_indicator_valid(int bit) const override {
    calls.push_back("syntax " + std::to_string(bit));
    return accepts_syntax;
  }
};

TEST(ShortSection, ReadsItsHeaderWhateverTheOtherBits) {
  for (int bits = 0; bits < 0x100; bits += 0x10) {  // the upper half of byte 1
    const HeapBlock section(Bytes{0x70, static_cast<unsigned char>(bits | 1), 0x02} + Bytes(0x102, 0xAA));
    Probe probe;
    EXPECT_FALSE(probe.valid);
    probe.Parse(section.data());
    EXPECT_TRUE(probe.valid);
    EXPECT_EQ(probe.section_length, 0x102);
    EXPECT_EQ(probe.body, section.data() + 3);
    EXPECT_EQ(probe.calls,
              (std::vector<std::string>{"syntax " + std::to_string(bits >> 7), "id 112", "body"}));
  }
}

TEST(ShortSection, ChecksInOrderAndKeepsWhatWasReadBefore) {
  struct Fault {
    char const* text;
    int value_at;  // the byte whose address `value` holds, or -1
    int table_id, section_length;
  };
  const std::vector<Fault> faults = {
      {"", 0, -7, -7}, {"", 1, -7, -7}, {"invalid table id", -1, 0x70, -7}, {"body refused", -1, 0x70, 5}};
  for (std::size_t i = 0; i < faults.size(); ++i) {
    for (const int top_bits : {0x04, 0x08, 0x0C}) {
      SCOPED_TRACE(i);
      const HeapBlock section(
          Bytes{0x70, static_cast<unsigned char>(i <= 1 ? top_bits : 0), 5, 1, 2, 3, 4, 5});
      Probe probe;
      probe.accepts_syntax = i > 0;
      probe.accepts_id = i > 2;
      probe.accepts_body = false;
      probe.table_id = probe.section_length = -7;
      const auto failure = testing::caught_error([&] { probe.Parse(section.data()); });
      ASSERT_TRUE(failure);
      const int at = faults[i].value_at;
      const auto address = reinterpret_cast<std::uintptr_t>(section.data() + at);
      EXPECT_EQ(failure->code, at < 0 ? error::no_errorcode : error::syntax_error);
      EXPECT_EQ(failure->value, at < 0 ? 0xFFFFFFFF : static_cast<unsigned int>(address));
      EXPECT_STREQ(failure->what(), faults[i].text);
      EXPECT_EQ(probe.table_id, faults[i].table_id);
      EXPECT_EQ(probe.section_length, faults[i].section_length);
      EXPECT_FALSE(probe.valid);
    }
  }
}

TEST(ShortSection, FitsInWhatIsAvailableOrFailsUntouched) {
  const Bytes whole = testing::make_short_section(0x70, Bytes(5, 1));
  for (std::size_t available = 0; available <= whole.size(); ++available) {
    const HeapBlock block({whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(available)});
    Probe probe;
    const auto parse = [&] { probe.Parse(block.data(), available); };
    if (available < whole.size()) {
      EXPECT_TRUE(throws(parse, "too little data")) << available;
      EXPECT_TRUE(probe.calls.empty());
    } else {
      parse();
      EXPECT_TRUE(probe.valid);
    }
  }
}

TEST(ShortSection, DumpsTwoLinesAndLeavesTheStreamAlone) {
  Probe probe;
  probe.table_id = 0x70;
  probe.section_length = 10;
  std::ostringstream os;
  const auto flags = os.flags();
  probe.dump_state(os);
  EXPECT_EQ(os.flags(), flags);
  probe.dump_state(os << std::hex);
  EXPECT_EQ(os.str(), "table_id: 112\nsection_length: 10\ntable_id: 70\nsection_length: a\n");
}

}  // namespace
}  // namespace sivane
