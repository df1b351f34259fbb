// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <gtest/gtest.h>
#include <sivane/foundation/dump.h>

#include <iomanip>
#include <sstream>

#include "heap_block.h"

namespace sivane {
namespace {

using testing::Bytes;
using testing::hex;

std::string block_text(Bytes const& bytes) {
  const testing::HeapBlock block(bytes);
  std::ostringstream os;
  dump_block(os, block.data(), block.size());
  return os.str();
}

TEST(DumpBlock, WritesSixteenBytesALine) {
  EXPECT_EQ(block_text({}), "");
  EXPECT_EQ(block_text(hex("41 5A 61 7A 30 40 5B 60 7B C4 00 09 FF 4D 6D 20")),
            "41 5a 61 7a 30 40 5b 60 7b c4  0  9 ff 4d 6d 20  : AZaz.........Mm.\n");
  const std::string full = "41 41 41 41 41 41 41 41 41 41 41 41 41 41 41 41  : AAAAAAAAAAAAAAAA\n";
  EXPECT_EQ(block_text(Bytes(32, 'A')), full + full);
  EXPECT_EQ(block_text(Bytes(17, 'A')), full + "41 " + std::string(45, ' ') + " : A\n");
}

TEST(DumpBlock, TakesFillAndCaseFromTheStreamAndLeavesItHexadecimal) {
  std::ostringstream os;
  os << std::uppercase << std::setfill('0');
  dump_block(os, hex("0A FB").data(), 2);
  os << 255;
  EXPECT_EQ(os.str(), "0A FB " + std::string(42, ' ') + " : ..\nFF");
}

TEST(DumpLine, WritesLabelAndValueInTheStreamsBase) {
  std::ostringstream os;
  os << std::hex << std::setfill('0');
  dump::line(os, "int ", 255);
  dump::line(os, "uint ", 0xFFFFFFFFu);
  dump::line(os, "ulong ", 16ul);
  dump::line(os, "wide ", 10, 4);
  dump::line(os, "wide ", 0x123ul, 2);
  dump::line(os, "char ", static_cast<unsigned char>('B'));
  dump::line(os, "chars ", "C");
  dump::line(os, "string ", std::string("ab\0cd", 5));
  dump::line(os, "empty ", std::string());
  dump::line(os, "double ", 1.5);
  EXPECT_EQ(os.str(),
            "int ff\nuint ffffffff\nulong 10\nwide 000a\nwide 123\nchar B\nchars C\nstring ab\nempty "
            "\ndouble 1.5\n");
}

TEST(DumpLine, FlushesEveryLine) {
  struct CountingBuffer : std::stringbuf {
    int flushes = 0;
    int sync() override { return ++flushes, 0; }
  } buffer;
  std::ostream os(&buffer);
  dump::line(os, "a ", 1);
  dump::line(os, "b ", std::string("x"));
  dump_block(os, hex("00").data(), 1);
  EXPECT_EQ(buffer.flushes, 3);
}

TEST(DumpBlockUnderHeading, MayBeLeftOutForNoBytes) {
  std::ostringstream os;
  dump::block_if_any(os, "private data:", {});
  EXPECT_EQ(os.str(), "");
  dump::block(os, "data:", {});
  dump::block_if_any(os, "private data:", {0x41});
  EXPECT_EQ(os.str(), "data:\nprivate data:\n41 " + std::string(45, ' ') + " : A\n");
}

}  // namespace
}  // namespace sivane
