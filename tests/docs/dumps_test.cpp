// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// The dumps that docs/dumps.md shows are those that the library writes.
#include <gtest/gtest.h>
#include <sivane/sivane.h>

#include <sstream>

#include "file_contents.h"
#include "section_builder.h"
#include "section_text.h"

namespace {

std::string page() { return sivane::testing::contents(DUMPS_PAGE); }

template <class Object>
std::string block_of(Object const& object) {
  std::ostringstream os;
  object.dump_state(os);
  return "```\n" + os.str() + "```\n";
}

TEST(DumpsPage, ShowsWhatTheLibraryWrites) {
  using namespace sivane::testing;
  sivane::Pat pat;
  pat.Parse(make_pat({{0, 0x10}, {1, 0x100}}, {.context_id = 0x22, .version_number = 3}).data());
  EXPECT_NE(page().find(block_of(pat)), std::string::npos) << block_of(pat);

  sivane::DescriptorCa const descriptor(hex("09 06 0500 E1F5 54 01").data());
  EXPECT_NE(page().find(block_of(descriptor)), std::string::npos) << block_of(descriptor);

  int size = 99;
  Bytes const entry = assemble("0001 FF 8( 48[ 01 [ \"Harbour Media\" ] [ \"Harbour One\" ] ] 53[ 0500 ] )");
  sivane::Sdt::Service_info const service(entry.data(), size);
  EXPECT_NE(page().find(block_of(service)), std::string::npos) << block_of(service);
}

}  // namespace
