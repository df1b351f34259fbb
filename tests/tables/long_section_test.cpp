// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The frame of long-form sections, through a table of the test's own.
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

/// Refuses what it is told to, and notes what its hooks are asked.
class Probe final : public PsiTableBase {
 public:
  using PsiTableBase::Parse;
  bool accepts_syntax = true, accepts_reserved = true, accepts_id = true, accepts_body = true;
  mutable std::vector<std::string> calls;
  unsigned char const* body = nullptr;

  char const* get_table_id_text() const override { return "probe"; }
  void _reset() override { calls.push_back("reset"); }
  void _dump_state(std::ostream& os) const override { os << 0xAB << '\n'; }
  void _parse(void*) override {}
  void _parse(unsigned char const* bytes) override {
    calls.push_back("body");
    body = bytes;
    if (!accepts_body) throw error("body refused");
  }
  bool _save_section(void*, void*) const override { return false; }
  bool is_valid_tablesid() const override { return note("id", table_id, accepts_id); }
  bool is_valid_syntax_indicator(int bit) const override { return note("syntax", bit, accepts_syntax); }
  bool is_valid_reserved_header(int bits) const override { return note("reserved", bits, accepts_reserved); }

  std::vector<int> numbers() const {
    return {table_id,
            syntax_indicator,
            section_length,
            context_id,
            version_number,
            section_number,
            last_section_number,
            current_next_indicator,
            valid,
            static_cast<int>(crc32 >> 16),
            static_cast<int>(crc32 & 0xFFFF)};
  }

 private:
  bool note(char const* hook, int argument, bool answer) const {
    calls.push_back(std::string(hook) + ' ' + std::to_string(argument));
    return answer;
  }
};

unsigned int low_bits(unsigned char const* byte) {
  return static_cast<unsigned int>(reinterpret_cast<std::uintptr_t>(byte));
}

Bytes sample() {
  return testing::make_section({.table_id = 0x42,
                                .context_id = 0xABCD,
                                .version_number = 0x15,
                                .section_number = 3,
                                .last_section_number = 2,
                                .reserved_header = 2},
                               hex("11 22"));
}

TEST(LongSection, ReadsItsHeader) {
  const Bytes bytes = sample();
  const HeapBlock section(bytes);
  Probe probe;
  EXPECT_FALSE(probe.valid);
  probe.Parse(section.data());
  const unsigned int crc = testing::slow_crc({bytes.begin(), bytes.end() - 4});
  EXPECT_EQ(probe.numbers(), (std::vector<int>{0x42, 1, 11, 0xABCD, 0x15, 3, 2, 1, true,
                                               static_cast<int>(crc >> 16), static_cast<int>(crc & 0xFFFF)}));
  EXPECT_EQ(probe.crc32 >> 16 >> 16, 0u);
  EXPECT_EQ(probe.get_table_id(), 0x42);
  EXPECT_EQ(probe.body, section.data() + 8);
  EXPECT_EQ(probe.calls, (std::vector<std::string>{"syntax 1", "reserved 2", "id 66", "body"}));
}

TEST(LongSection, ATableForTheFutureAndUnusedBitsParse) {
  Bytes bytes = testing::make_section({.version_number = 31, .current_next_indicator = 0}, {});
  for (const int unused : {0x00, 0x40, 0x80, 0xC0}) {
    bytes[5] = static_cast<unsigned char>(unused | 0x3E);
    bytes[1] ^= 0x40;
    testing::repair_crc(bytes);
    Probe probe;
    probe.Parse(HeapBlock(bytes).data());
    EXPECT_EQ(probe.version_number, 31);
    EXPECT_EQ(probe.current_next_indicator, 0);
    EXPECT_TRUE(probe.valid);
  }
}

/// A failure, what it is, and which numbers are written before it.
struct Fault {
  char const* name;
  error::errorcode_enum code;
  char const* text;
  int value_at;              // the byte whose address `value` holds, or -1
  std::vector<int> numbers;  // the first three
  bool has_read_header;
};

const std::vector<Fault> faults = {
    {"crc", error::no_errorcode, "crc error", -1, {-7, 0, 11}, false},
    {"syntax bit", error::syntax_error, "", 0, {-7, 0, 11}, false},
    {"syntax hook", error::syntax_error, "", 1, {-7, 1, 11}, false},
    {"reserved hook", error::syntax_error, "", 1, {-7, 1, 11}, false},
    {"table id", error::no_errorcode, "invalid table id", -1, {0x42, 1, 11}, false},
    {"body", error::no_errorcode, "body refused", -1, {0x42, 1, 11}, true},
};

/// The sample with the fault of this index, and all later ones that stand in bytes.
Bytes faulty_sample(std::size_t fault) {
  Bytes bytes = sample();
  if (fault > 1) return bytes;
  bytes[1] &= 0x7F;
  testing::repair_crc(bytes);
  if (fault == 0) bytes.back() ^= 1;
  return bytes;
}

/// A used table with the fault of this index and all later ones that lie in hooks.
Probe faulty_probe(std::size_t fault) {
  Probe probe;
  probe.accepts_syntax = fault > 2;
  probe.accepts_reserved = fault > 3;
  probe.accepts_id = fault > 4;
  probe.accepts_body = false;
  probe.table_id = probe.syntax_indicator = probe.section_length = probe.context_id = -7;
  probe.version_number = probe.section_number = probe.last_section_number = -7;
  probe.current_next_indicator = -7;
  probe.crc32 = 0x70007;
  probe.valid = true;
  return probe;
}

TEST(LongSection, ChecksInOrderAndKeepsWhatWasReadBefore) {
  for (std::size_t i = 0; i < faults.size(); ++i) {
    SCOPED_TRACE(faults[i].name);
    const HeapBlock section(faulty_sample(i));
    Probe probe = faulty_probe(i);
    const auto failure = testing::caught_error([&] { probe.Parse(section.data()); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->code, faults[i].code);
    EXPECT_STREQ(failure->what(), faults[i].text);
    const int at = faults[i].value_at;
    EXPECT_EQ(failure->value, at < 0 ? 0xFFFFFFFF : low_bits(section.data() + at));
    const std::vector<int> numbers = probe.numbers();
    EXPECT_EQ(std::vector<int>(numbers.begin(), numbers.begin() + 3), faults[i].numbers);
    const std::vector<int> rest(numbers.begin() + 3, numbers.begin() + 9);
    EXPECT_EQ(rest, faults[i].has_read_header ? (std::vector<int>{0xABCD, 0x15, 3, 2, 1, true})
                                              : (std::vector<int>{-7, -7, -7, -7, -7, true}));
    EXPECT_EQ(probe.crc32 != 0x70007, faults[i].has_read_header);
  }
}

TEST(LongSection, AFirstFailureLeavesItInvalid) {
  Probe probe;
  probe.accepts_body = false;
  EXPECT_TRUE(throws([&] { probe.Parse(HeapBlock(sample()).data()); }, "body refused"));
  EXPECT_FALSE(probe.valid);
}

TEST(LongSection, EveryFlippedBitOfTheContentIsACrcError) {
  const Bytes good = sample();
  for (std::size_t bit = 0; bit < good.size() * 8; ++bit) {
    if (bit >= 12 && bit < 24) continue;  // another section_length is another section
    Bytes bytes = good;
    bytes[bit / 8] ^= static_cast<unsigned char>(0x80 >> bit % 8);
    Probe probe;
    EXPECT_TRUE(throws([&] { probe.Parse(HeapBlock(bytes).data()); }, "crc error")) << bit;
  }
}

TEST(LongSection, FitsInWhatIsAvailableOrFailsUntouched) {
  const Bytes whole = sample();
  for (std::size_t available = 0; available <= whole.size(); ++available) {
    const HeapBlock block({whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(available)});
    Probe probe;
    const auto parse = [&] { probe.Parse(block.data(), available); };
    if (available < whole.size()) {
      EXPECT_TRUE(throws(parse, "too little data")) << available;
      EXPECT_EQ(probe.section_length, 0);
    } else {
      parse();
      EXPECT_TRUE(probe.valid);
    }
  }
  Probe probe;
  probe.Parse(HeapBlock(whole + Bytes(9)).data(), whole.size() + 9);
  EXPECT_TRUE(probe.valid);
}

TEST(LongSection, TooShortForItsHeaderIsTooLittleData) {
  int found = 0;  // sections of six bytes whose CRC happens to spell their own length
  for (int id = 0; id < 256; ++id) {
    for (int bits = 0x80; bits < 0x100; bits += 0x10) {
      Bytes bytes{static_cast<unsigned char>(id), static_cast<unsigned char>(bits), 0, 0, 0, 0};
      testing::repair_crc(bytes);
      if (bytes[2] != 3) continue;
      ++found;
      Probe probe;
      EXPECT_TRUE(throws([&] { probe.Parse(HeapBlock(bytes).data()); }, "too little data"));
    }
  }
  EXPECT_GT(found, 0);
}

TEST(LongSection, ResetEmptiesAndKeepsTheNumbers) {
  Probe probe;
  probe.Parse(HeapBlock(sample()).data());
  probe.descriptors.emplace_back(0x40, nullptr, 0);
  probe.calls.clear();
  probe.reset();
  EXPECT_FALSE(probe.valid);
  EXPECT_TRUE(probe.descriptors.empty());
  EXPECT_EQ(probe.calls, std::vector<std::string>{"reset"});
  EXPECT_EQ(probe.context_id, 0xABCD);
}

TEST(LongSection, DumpsHeaderDescriptorsAndBodyAndLeavesTheStreamSo) {
  Probe probe;
  probe.table_id = 0xA;
  probe.section_length = 0x2F;
  probe.context_id = 0xBCD;
  probe.version_number = 0x1F;
  probe.section_number = 1;
  probe.last_section_number = 0xC;
  probe.current_next_indicator = 1;
  probe.crc32 = 0x123ABC;
  const std::string header =
      "table_id 0A\nsection_length 002F\ncontext_id 0BCD\nversion_number 1F\nsection_number 01\n"
      "last_section_number C\ncurrent_next_indicator 01\ncrc32 00123ABC\n";
  std::ostringstream os;
  os << std::left;
  probe.dump_state(os);
  EXPECT_EQ(os.str(), header + "AB\n");
  EXPECT_EQ(os.flags() & std::ios::basefield, std::ios::hex);
  EXPECT_EQ(os.flags() & std::ios::adjustfield, std::ios::right);
  EXPECT_TRUE(os.flags() & std::ios::unitbuf);
  EXPECT_TRUE(os.flags() & std::ios::uppercase);
  EXPECT_EQ(os.fill(), '0');

  std::ostringstream descriptor, with_descriptor;
  probe.descriptors.emplace_back(0x40, nullptr, 0);
  descriptor << std::hex << std::uppercase;
  descriptor.fill('0');
  probe.descriptors[0].dump_state(descriptor);
  probe.dump_state(with_descriptor);
  EXPECT_EQ(with_descriptor.str(), header + descriptor.str() + "AB\n");
}

}  // namespace
}  // namespace sivane
