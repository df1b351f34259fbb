// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// What becomes text and comes from text: DVB text fields, hexadecimal digits, dumps.
#include <gtest/gtest.h>
#include <sivane/foundation/dump.h>
#include <sivane/foundation/dump_lines.h>
#include <sivane/foundation/hex.h>
#include <sivane/foundation/length_prefixed_string.h>
#include <sivane/foundation/multilingual_name_info.h>
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
}

TEST(LengthPrefixedString, TakesTheBytesAsTheyCome) {
  HeapBlock const block(hex("03 05 00 43"));
  int used = -1;
  LengthPrefixedString const string(block.data(), 0, used);  // its size is not looked at
  EXPECT_EQ(string.value, std::string("\5\0C", 3));
  EXPECT_EQ(used, 4);
}

TEST(MultilingualNameInfo, FitsInItsLoopOrFails) {
  Bytes const record = hex("65 6E 67 03 05 42 43 FF");
  for (int size = -1; size <= 8; ++size) {
    HeapBlock const loop({record.begin(), record.begin() + std::max(size, 0)});
    int used = -1;
    auto const build = [&] { return MultilingualNameInfo(loop.data(), size, used); };
    std::string const name = "multilingual_name_info_descriptor";
    if (size < 7) {
      EXPECT_TRUE(throws(build, error::length_error, size < 4 ? name : name + ":2")) << size;
    } else {
      EXPECT_EQ(build().name, string_of(hex("05 42 43")));
      EXPECT_EQ(used, 7);
    }
  }
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

TEST(DumpLine, KeepsTheStreamsBaseAndFlushes) {
  struct CountingBuffer : std::stringbuf {
    int flushes = 0;
    int sync() override { return ++flushes, 0; }
  } buffer;
  std::ostream os(&buffer);
  os << std::hex << std::setfill('0');
  dump::line(os, "int ", 255);
  dump::line(os, "wide ", 0x123ul, 2);
  dump::line(os, "wide ", 10, 4);
  dump::line(os, "string ", std::string("ab\0cd", 5));
  dump_block(os, hex("00").data(), 1);
  EXPECT_EQ(buffer.str().substr(0, 41), "int ff\nwide 123\nwide 000a\nstring ab\n00   ");
  EXPECT_EQ(buffer.flushes, 5);
}

struct Grouping : std::numpunct<char> {
  std::string do_grouping() const override { return "\2"; }
  char do_decimal_point() const override { return ','; }
};

/// Calls `check` with a stream of every state that changes how something is written.
template <class Check>
void in_every_state(Check check) {
  constexpr std::ios::fmtflags all[] = {
      std::ios::dec,       std::ios::oct,        std::ios::hex,      std::ios::showbase, std::ios::showpos,
      std::ios::uppercase, std::ios::left,       std::ios::internal, std::ios::right,    std::ios::unitbuf,
      std::ios::showpoint, std::ios::scientific, std::ios::fixed};
  for (unsigned int set = 0; set < 1u << std::size(all); ++set) {
    std::ostringstream os;
    std::ios::fmtflags flags{};
    for (std::size_t i = 0; i < std::size(all); ++i) flags |= (set >> i & 1) != 0 ? all[i] : flags;
    os.flags(flags);
    os.fill(set % 3 == 0 ? '0' : ' ');
    os.width(set % 5 == 0 ? 7 : 0);
    os.precision(static_cast<int>(set % 7) * 9 - 3);
    if (set % 11 == 0) os.imbue(std::locale(std::locale::classic(), new Grouping));
    check(os);
  }
}

TEST(DumpLine, IsWhatInsertionsWriteInEveryStateOfTheStream) {
  std::string const long_text(300, 'x');
  std::vector<std::string> written;
  in_every_state([&](std::ostringstream& os) {
    dump::line(os, "int ", -12345);
    dump::line(os, "wide ", 0x12ABC, 8);
    dump::line(os, "unsigned ", 4294967295u);
    dump::line(os, "byte ", static_cast<unsigned char>('b'));
    dump::line(os, "double ", 1234.5678e7);
    dump::line(os, "", long_text);
    os << std::setw(6) << Duration(hex("11 12 13").data()) << std::hex << std::endl;
    written.push_back(os.str());
  });
  std::size_t state = 0;
  in_every_state([&](std::ostringstream& os) {
    os << "int " << std::setw(0) << -12345 << std::endl;
    os << "wide " << std::setw(8) << 0x12ABC << std::endl;
    os << "unsigned " << 4294967295u << std::endl << "byte " << 'b' << std::endl;
    os << "double " << 1234.5678e7 << std::endl << "" << long_text << std::endl;
    os << std::setw(6) << std::dec << 11 << ':' << 12 << ':' << 13 << std::hex << std::endl;
    ASSERT_EQ(os.str(), written[state]) << std::hex << state;
    ++state;
  });
}

}  // namespace
}  // namespace sivane::testing
