// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The frames of long-form and short-form sections, through tables of the test's own.
#include <gtest/gtest.h>
#include <sivane/tables/section.h>

#include <cstdint>
#include <sstream>

#include "expect_error.h"
#include "heap_block.h"

namespace sivane::testing {
namespace {

/// A table that refuses what `refused` names, and notes what its hooks are asked.
template <class Frame>
class Probe : public Frame {
 public:
  using Frame::Parse;
  std::string refused;
  mutable std::string calls;
  unsigned char const* body = nullptr;

  char const* get_table_id_text() const override { return "probe"; }
  void _reset() override { calls += "reset;"; }
  void _parse(void*) override {}
  void _parse(unsigned char const* bytes) override {
    body = bytes;
    if (!ask("body", bytes[0])) throw error("body refused");
  }
  bool _save_section(void*, void*) const override { return false; }
  bool is_valid_tablesid() const override { return ask("id", this->table_id); }

 protected:
  bool ask(std::string const& hook, int argument) const {
    calls += hook + ' ' + std::to_string(argument) + ';';
    return refused.find(hook) == std::string::npos;
  }
};

struct ShortProbe final : Probe<PsiBase> {
  bool is_syntax_indicator_valid(int bit) const override { return ask("syntax", bit); }
};

struct LongProbe final : Probe<PsiTableBase> {
  void _dump_state(std::ostream& os) const override { os << 0xAB << '\n'; }
  bool is_valid_syntax_indicator(int bit) const override { return ask("syntax", bit); }
  bool is_valid_reserved_header(int bits) const override { return ask("reserved", bits); }
  /// What is read with the header: all of it or nothing.
  std::vector<std::int64_t> header() const {
    return {context_id,          version_number,         section_number,
            last_section_number, current_next_indicator, static_cast<std::int64_t>(crc32)};
  }
};

Bytes const long_sample = make_section({.table_id = 0x42,
                                        .context_id = 0xABCD,
                                        .version_number = 0x15,
                                        .current_next_indicator = 0,
                                        .section_number = 3,
                                        .last_section_number = 2,
                                        .reserved_header = 2},
                                       {0x11, 0x22});
std::vector<std::int64_t> const long_sample_header = {
    0xABCD, 0x15, 3, 2, 0, slow_crc({long_sample.begin(), long_sample.end() - 4})};
Bytes const short_sample{0x70, 0, 5, 1, 2, 3, 4, 5};

/// Parses, and expects a failure whose `value` holds the address of the byte `value_at`, or -1 for none.
template <class Frame>
void expect_failure(Probe<Frame>& probe, Bytes const& bytes, char const* text, int value_at) {
  HeapBlock const section(bytes);
  auto const failure = caught_error([&] { probe.Parse(section.data()); });
  ASSERT_TRUE(failure);
  auto const address = reinterpret_cast<std::uintptr_t>(section.data() + value_at);
  EXPECT_EQ(failure->value, value_at < 0 ? 0xFFFFFFFF : static_cast<unsigned int>(address));
  EXPECT_EQ(failure->code, value_at < 0 ? error::no_errorcode : error::syntax_error);
  EXPECT_TRUE(value_at < 0 || failure->offset == 1);  // the header bits are in one byte
  EXPECT_STREQ(failure->what(), text);
}

/// Every shorter number of bytes fails before anything is read.
template <class Table>
void check_available(Bytes const& whole) {
  for (std::size_t available = 0; available <= whole.size() + 9; ++available) {
    Bytes bytes = whole + Bytes(9);
    bytes.resize(available);
    HeapBlock const block(bytes);
    Table probe;
    auto const parse = [&] { probe.Parse(block.data(), available); };
    bool const fits = available >= whole.size();
    EXPECT_EQ(fits, !caught_error(parse)) << available;
    EXPECT_EQ(probe.valid, fits);
    EXPECT_EQ(probe.section_length != 0, fits);
    EXPECT_TRUE(fits || throws(parse, "too little data"));
  }
}

TEST(Sections, FitInWhatIsAvailableOrFailUntouched) {
  check_available<LongProbe>(long_sample);
  check_available<ShortProbe>(short_sample);
}

TEST(LongSection, ReadsItsHeaderUntilReset) {
  HeapBlock const section(long_sample);
  LongProbe probe;
  EXPECT_FALSE(probe.valid);
  probe.Parse(section.data());
  EXPECT_TRUE(probe.valid);
  EXPECT_EQ(probe.get_table_id(), 0x42);
  EXPECT_EQ(probe.syntax_indicator, 1);
  EXPECT_EQ(probe.section_length, 11);
  EXPECT_EQ(probe.header(), long_sample_header);
  EXPECT_EQ(probe.body, section.data() + 8);
  probe.descriptors.emplace_back(0x40, nullptr, 0);
  probe.reset();
  EXPECT_FALSE(probe.valid);
  EXPECT_TRUE(probe.descriptors.empty());
  EXPECT_EQ(probe.calls, "syntax 1;reserved 2;id 66;body 17;reset;");
  EXPECT_EQ(probe.header(), long_sample_header);
}

TEST(LongSection, ChecksInOrderAndKeepsWhatWasReadBefore) {
  struct Fault {  // a section with one of them has all later ones too
    char const *refused, *text;
    int value_at, table_id, syntax_indicator;
  };
  Fault const faults[] = {{"all: syntax reserved id body", "crc error", -1, -7, 0},
                          {"syntax reserved id body", "", 0, -7, 0},
                          {"syntax reserved id body", "", 1, -7, 1},
                          {"reserved id body", "", 1, -7, 1},
                          {"id body", "invalid table id", -1, 0x42, 1},
                          {"body", "body refused", -1, 0x42, 1}};
  for (int i = 0; i < 12; ++i) {
    SCOPED_TRACE(i);
    Fault const& fault = faults[i / 2];
    Bytes bytes = long_sample;
    if (i / 2 <= 1) bytes[1] &= 0x7F;
    repair_crc(bytes);
    if (i / 2 == 0) bytes.back() ^= 1;
    LongProbe probe;
    probe.refused = fault.refused;
    probe.table_id = probe.syntax_indicator = probe.section_length = -7;
    probe.valid = i % 2 == 0;
    expect_failure(probe, bytes, fault.text, fault.value_at);
    EXPECT_EQ(probe.table_id, fault.table_id);
    EXPECT_EQ(probe.syntax_indicator, fault.syntax_indicator);
    EXPECT_EQ(probe.section_length, 11);
    EXPECT_EQ(probe.header(), i / 2 == 5 ? long_sample_header : LongProbe().header());
    EXPECT_EQ(probe.valid, i % 2 == 0);
  }
}

TEST(LongSection, DumpsHeaderDescriptorsAndBodyAndLeavesTheStreamSo) {
  LongProbe probe;
  probe.table_id = probe.version_number = probe.last_section_number = 0xA;
  probe.section_length = probe.context_id = 0xBCD;
  probe.section_number = probe.current_next_indicator = 1;
  probe.crc32 = 0x123ABC;
  probe.descriptors.emplace_back(0x40, nullptr, 0);
  std::ostringstream descriptor, os;
  probe.descriptors[0].dump_state(descriptor << std::uppercase);
  probe.dump_state(os << std::left);
  EXPECT_EQ(os.str(),
            "table_id 0A\nsection_length 0BCD\ncontext_id 0BCD\nversion_number 0A\nsection_number 01\n"
            "last_section_number A\ncurrent_next_indicator 01\ncrc32 00123ABC\n" +
                descriptor.str() + "AB\n");
  auto const kept = std::ios::hex | std::ios::right | std::ios::unitbuf | std::ios::uppercase;
  EXPECT_EQ(os.flags() & (kept | std::ios::basefield | std::ios::adjustfield), kept);
  EXPECT_EQ(os.fill(), '0');
}

TEST(ShortSection, ReadsItsHeaderWhateverTheOtherBits) {
  for (int bits = 0; bits < 0x100; bits += 0x10) {  // the upper half of byte 1
    HeapBlock const section(Bytes{0x70, static_cast<unsigned char>(bits | 1), 0x02} + Bytes(0x102, 0xAA));
    ShortProbe probe;
    probe.Parse(section.data());
    EXPECT_TRUE(probe.valid);
    EXPECT_EQ(probe.section_length, 0x102);
    EXPECT_EQ(probe.body, section.data() + 3);
    EXPECT_EQ(probe.calls, "syntax " + std::to_string(bits >> 7) + ";id 112;body 170;");
  }
}

TEST(ShortSection, ChecksInOrderAndKeepsWhatWasReadBefore) {
  struct Fault {
    char const *refused, *text;
    unsigned char length_bits;
    int value_at, table_id, section_length;
  };
  for (Fault const& fault : {Fault{"syntax id body", "", 0x0C, 0, -7, -7},
                             {"id body", "", 0x04, 1, -7, -7},
                             {"id body", "", 0x08, 1, -7, -7},
                             {"id body", "invalid table id", 0, -1, 0x70, -7},
                             {"body", "body refused", 0, -1, 0x70, 5}}) {
    Bytes bytes = short_sample;
    bytes[1] = fault.length_bits;
    ShortProbe probe;
    probe.refused = fault.refused;
    probe.table_id = probe.section_length = -7;
    expect_failure(probe, bytes, fault.text, fault.value_at);
    EXPECT_EQ(probe.table_id, fault.table_id);
    EXPECT_EQ(probe.section_length, fault.section_length);
    EXPECT_FALSE(probe.valid);
  }
}

TEST(ShortSection, DumpsTwoLinesInTheStreamsBase) {
  ShortProbe probe;
  probe.table_id = 0x70;
  probe.section_length = 10;
  std::ostringstream os;
  probe.dump_state(os);
  probe.dump_state(os << std::hex);
  EXPECT_EQ(os.str(), "table_id: 112\nsection_length: 10\ntable_id: 70\nsection_length: a\n");
}

}  // namespace
}  // namespace sivane::testing
