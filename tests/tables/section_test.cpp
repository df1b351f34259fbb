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
#include "section_text.h"

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
  std::string header() const { return ""; }
  int body_size() const { return section_length; }
  bool is_syntax_indicator_valid(int bit) const override { return ask("syntax", bit); }
};

struct LongProbe final : Probe<PsiTableBase> {
  void _dump_state(std::ostream& os) const override { os << 0xAB << '\n'; }
  bool is_valid_syntax_indicator(int bit) const override { return ask("syntax", bit); }
  bool is_valid_reserved_header(int bits) const override { return ask("reserved", bits); }
  int body_size() const { return section_length - 5; }
  std::string header() const {
    std::ostringstream os;
    os << std::hex << ' ' << syntax_indicator << ": " << context_id << ' ' << version_number << ' '
       << section_number << ' ' << last_section_number << ' ' << current_next_indicator << ' ' << crc32;
    return os.str();
  }
};

Bytes const long_sample = assemble("42 E( ABCD EA 03 02 1122 crc )");
Bytes const short_sample{0x70, 0, 5, 1, 2, 3, 4, 5};

/// What a probe was asked, the fields that it has then, and what is thrown with the byte whose address
/// `value` holds. The fields are 777 before.
template <class Table>
std::string parsed(Bytes const& bytes, std::string const& refused) {
  HeapBlock const section(bytes);
  Table probe;
  probe.refused = refused;
  probe.table_id = probe.section_length = 0x777;
  auto const failure = caught_error([&] { probe.Parse(section.data()); });
  EXPECT_EQ(probe.valid, !failure);
  std::ostringstream os;
  os << probe.calls << ' ' << std::hex << probe.table_id << ' ' << probe.section_length << probe.header();
  EXPECT_TRUE(probe.body == nullptr || probe.body == section.data() + bytes.size() - probe.body_size());
  if (!failure) return os.str();
  os << "; " << thrown([&] { throw *failure; });
  auto const address = static_cast<unsigned int>(reinterpret_cast<std::uintptr_t>(section.data()));
  if (failure->value != 0xFFFFFFFF) os << ", value at " << failure->value - address;
  EXPECT_TRUE(failure->code != error::syntax_error ||
              failure->offset == 1);  // the header bits are in one byte
  return os.str();
}

TEST(LongSection, ChecksInOrderAndKeepsWhatWasReadBefore) {
  Bytes no_syntax = long_sample;
  no_syntax[1] &= 0x7F;
  repair_crc(no_syntax);
  Bytes wrong_crc = no_syntax;
  wrong_crc.back() ^= 1;
  std::string const unread = ": 0 0 0 0 0 0", read = ": abcd 15 3 2 0 f48f37f1";
  std::string const asked = "syntax 1;reserved 2;id 66;body 17; 42 b 1";
  EXPECT_EQ(parsed<LongProbe>(wrong_crc, "syntax"), " 777 b 0" + unread + "; no_errorcode crc error");
  EXPECT_EQ(parsed<LongProbe>(no_syntax, "syntax"), " 777 b 0" + unread + "; syntax_error, value at 0");
  EXPECT_EQ(parsed<LongProbe>(long_sample, "syntax reserved"),
            "syntax 1; 777 b 1" + unread + "; syntax_error, value at 1");
  EXPECT_EQ(parsed<LongProbe>(long_sample, "reserved id"),
            "syntax 1;reserved 2; 777 b 1" + unread + "; syntax_error, value at 1");
  EXPECT_EQ(parsed<LongProbe>(long_sample, "id body"),
            "syntax 1;reserved 2;id 66; 42 b 1" + unread + "; no_errorcode invalid table id");
  EXPECT_EQ(parsed<LongProbe>(long_sample, "body"), asked + read + "; no_errorcode body refused");
  EXPECT_EQ(parsed<LongProbe>(long_sample, ""), asked + read);
}

TEST(LongSection, KeepsItsHeaderWhenItIsReset) {
  LongProbe probe;
  probe.Parse(long_sample.data());
  probe.descriptors.emplace_back(0x40, nullptr, 0);
  std::string const header = probe.header();
  probe.reset();
  EXPECT_FALSE(probe.valid);
  EXPECT_TRUE(probe.descriptors.empty());
  EXPECT_EQ(probe.header(), header);
  EXPECT_TRUE(probe.calls.ends_with("reset;")) << probe.calls;
  EXPECT_EQ(probe.get_table_id(), 0x42);
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

TEST(ShortSection, ChecksInOrderAndKeepsWhatWasReadBefore) {
  Bytes bits = short_sample;
  for (int const length_bits : {0x04, 0x08}) {
    bits[1] = static_cast<unsigned char>(length_bits);
    EXPECT_EQ(parsed<ShortProbe>(bits, "id"), "syntax 0; 777 777; syntax_error, value at 1");
    EXPECT_EQ(parsed<ShortProbe>(bits, "syntax"), "syntax 0; 777 777; syntax_error, value at 0");
  }
  EXPECT_EQ(parsed<ShortProbe>(short_sample, "id body"),
            "syntax 0;id 112; 70 777; no_errorcode invalid table id");
  EXPECT_EQ(parsed<ShortProbe>(short_sample, "body"),
            "syntax 0;id 112;body 1; 70 5; no_errorcode body refused");
}

}  // namespace
}  // namespace sivane::testing
