// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What becomes text and comes from text: DVB text fields, hexadecimal digits, dumps.
#include <gtest/gtest.h>
#include <sivane/foundation/dump.h>
#include <sivane/foundation/dump_lines.h>
#include <sivane/foundation/hex.h>
#include <sivane/foundation/text.h>
#include <sivane/foundation/time.h>

#include <iomanip>
#include <locale>
#include <sstream>

#include "expect_error.h"
#include "heap_block.h"

namespace sivane::testing {
namespace {

std::string string_of(Bytes const& bytes) { return {bytes.begin(), bytes.end()}; }

TEST(Text, DropsOneSelectorByteInFront) {
  for (auto const& [bytes, text] :
       std::vector<std::pair<Bytes, Bytes>>{{{0}, {}},
                                            {hex("01 05"), {}},
                                            {hex("03 10 00 02"), hex("00 02")},
                                            {hex("03 41 05 42"), hex("41 05 42")},
                                            {Bytes(256, 0xFF), Bytes(255, 0xFF)}}) {
    HeapBlock const field(bytes);
    int used = -1;
    EXPECT_EQ(Text(field.data(), used), string_of(text));
    EXPECT_EQ(used, field.size());
  }
  std::string selectors;
  for (int first = 0; first < 256; ++first) {
    Text text;
    text.parse(2, Bytes{static_cast<unsigned char>(first), 'A'}.data());
    EXPECT_EQ(text.selector(), text == "A" ? first : -1);
    if (text == "A") selectors += static_cast<char>(first);
  }
  EXPECT_EQ(selectors, string_of(hex("00 01 02 03 04 05 06 0F 10 11 12 1F")));
}

TEST(Text, AppendsToWhatItHolds) {
  HeapBlock const field(hex("02 05 41"));
  int used = 0;
  Text text(field.data(), used);
  text.parse(field.data(), used);
  for (int const none : {0, -1}) text.parse(none, nullptr);
  EXPECT_EQ(text, "AA");
  text.parse(2, hex("06 42").data());
  EXPECT_EQ(text.selector(), 5) << "of the first";
  text.clear();
  text.parse(1, hex("43").data());
  EXPECT_EQ(text.selector(), -1) << "of what it holds";
}

using Ints = std::vector<int>;
using Ulongs = std::vector<unsigned long>;

TEST(Bin2str, AppendsLowerCaseGroups) {
  std::string text = "<";
  Bytes const bytes{0x0A, 0xFF};
  bin2str(bytes, text);
  bin2str(bytes.data(), text, 2);
  bin2str(Ints{-1, 0x12AB}, text);
  bin2str(Ulongs{0xFFFFFFFF, 1}, text);
  EXPECT_EQ(text, "<0aff0affffffffff000012abffffffff00000001");
}

/// What str2bin appends; the target holds a 7 before.
template <class Entry>
std::vector<Entry> appended(char const* text) {
  std::vector<Entry> data{7};
  str2bin(text, data);
  EXPECT_EQ(data.front(), Entry{7});
  return {data.begin() + 1, data.end()};
}

TEST(Str2bin, AppendsWholeGroupsOfEitherCaseUpToTheirFirstBadDigit) {
  EXPECT_EQ(appended<unsigned char>("0AfF1gg1-1"), (Bytes{0x0A, 0xFF, 1, 0, 0}));
  EXPECT_EQ(appended<int>("ffffffff000012AB12x\xFF\x80.34"), (Ints{-1, 0x12AB, 0x12}));
  EXPECT_EQ(appended<unsigned long>("ffffffff80000000"), (Ulongs{0xFFFFFFFF, 0x80000000}));
  EXPECT_EQ(appended<unsigned char>("abc"), Bytes());
  for (char const* const text : {"", "a", "0123456", "012345678"}) {
    EXPECT_EQ(appended<int>(text), Ints());
    EXPECT_EQ(appended<unsigned long>(text), Ulongs());
  }
}

TEST(Str2bin, StopsAtTheRoomOrTheTextsEnd) {
  for (int room = 0; room <= 7; ++room) {
    HeapBlock const block(Bytes(static_cast<std::size_t>(room), 0xEE));
    str2bin("0102030405", block.data(), room);
    str2bin("01", block.data(), -1);
    for (int i = 0; i < room; ++i) EXPECT_EQ(block.data()[i], i < 5 ? i + 1 : 0xEE) << room;
  }
}

TEST(DumpBlock, WritesSixteenBytesALine) {
  std::string const full = "41 41 41 41 41 41 41 41 41 41 41 41 41 41 41 41  : AAAAAAAAAAAAAAAA\n";
  for (auto const& [bytes, text] : std::vector<std::pair<Bytes, std::string>>{
           {{}, ""},
           {hex("41 5A 61 7A 30 40 5B 60 7B C4 00 09 FF 4D 6D 20"),
            "41 5a 61 7a 30 40 5b 60 7b c4  0  9 ff 4d 6d 20  : AZaz.........Mm.\n"},
           {Bytes(32, 'A'), full + full},
           {Bytes(17, 'A'), full + "41 " + std::string(45, ' ') + " : A\n"}}) {
    HeapBlock const block(bytes);
    std::ostringstream os;
    dump_block(os, block.data(), block.size());
    EXPECT_EQ(os.str(), text);
  }
}

TEST(DumpBlock, TakesFillAndCaseFromTheStreamAndLeavesItHexadecimal) {
  std::ostringstream os;
  os << std::uppercase << std::setfill('0');
  dump_block(os, hex("0A FB").data(), 2);
  os << 255;
  EXPECT_EQ(os.str(), "0A FB " + std::string(42, ' ') + " : ..\nFF");
}

TEST(DumpLine, EndsTextAtAZeroByteAndFlushes) {
  struct CountingBuffer : std::stringbuf {
    int flushes = 0;
    int sync() override { return ++flushes, 0; }
  } buffer;
  std::ostream os(&buffer);
  dump::line(os, "int ", 255);
  dump::line(os, "string ", std::string("ab\0cd", 5));
  dump_block(os, hex("00").data(), 1);
  EXPECT_TRUE(buffer.str().starts_with("int 255\nstring ab\n")) << buffer.str();
  EXPECT_EQ(buffer.flushes, 3);
}

constexpr unsigned int state_count = 1 << 13;

struct Grouping : std::numpunct<char> {
  std::string do_grouping() const override { return "\2"; }
  char do_decimal_point() const override { return ','; }
};

/// One of the `state_count` states of a stream that change how something is written.
void put_in_state(std::ostringstream& os, unsigned int state) {
  constexpr std::ios::fmtflags all[] = {
      std::ios::dec,       std::ios::oct,        std::ios::hex,      std::ios::showbase, std::ios::showpos,
      std::ios::uppercase, std::ios::left,       std::ios::internal, std::ios::right,    std::ios::unitbuf,
      std::ios::showpoint, std::ios::scientific, std::ios::fixed};
  static_assert(1u << std::size(all) == state_count);
  std::ios::fmtflags flags{};
  for (std::size_t i = 0; i < std::size(all); ++i) flags |= (state >> i & 1) != 0 ? all[i] : flags;
  os.flags(flags);
  os.fill(state % 3 == 0 ? '0' : ' ');
  os.width(state % 5 == 0 ? 7 : 0);
  os.precision(static_cast<int>(state % 7) * 9 - 3);
  if (state % 11 == 0) os.imbue(std::locale(std::locale::classic(), new Grouping));
}

TEST(DumpLine, IsWhatInsertionsWriteInEveryStateOfTheStream) {
  std::string const long_text(300, 'x');
  for (unsigned int state = 0; state < state_count; ++state) {
    std::ostringstream os, expected;
    put_in_state(os, state);
    dump::line(os, "int ", -12345);
    dump::line(os, "wide ", 0x12ABC, 8);
    dump::line(os, "wide ", 0x123ul, 2);
    dump::line(os, "unsigned ", 4294967295u);
    dump::line(os, "byte ", static_cast<unsigned char>('b'));
    dump::line(os, "double ", 1234.5678e7);
    dump::line(os, "", long_text);
    os << std::setw(6) << Duration(hex("11 12 13").data()) << std::hex << std::endl;
    put_in_state(expected, state);
    expected << "int " << std::setw(0) << -12345 << std::endl;
    expected << "wide " << std::setw(8) << 0x12ABC << std::endl;
    expected << "wide " << std::setw(2) << 0x123ul << std::endl;
    expected << "unsigned " << 4294967295u << std::endl << "byte " << 'b' << std::endl;
    expected << "double " << 1234.5678e7 << std::endl << "" << long_text << std::endl;
    expected << std::setw(6) << std::dec << 11 << ':' << 12 << ':' << 13 << std::hex << std::endl;
    ASSERT_EQ(os.str(), expected.str()) << std::hex << state;
  }
}

}  // namespace
}  // namespace sivane::testing
