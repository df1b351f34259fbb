// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Records that a host builds from a bare pointer.
#include <gtest/gtest.h>

#include <type_traits>

#include "expect_error.h"
#include "rows.h"

namespace sivane::testing {
namespace {

/// The bytes that the record takes of a block of just these, or what it throws.
template <class Record>
std::string taken(char const* text) {
  HeapBlock const bytes(hex(text));
  int consumed = bytes.size();
  std::string const failure = thrown([&] {
    if constexpr (std::is_constructible_v<Record, unsigned char*, int, int&>) {
      Record(bytes.data(), bytes.size(), consumed);
    } else {
      Record(bytes.data(), consumed);
    }
  });
  return failure.empty() ? std::to_string(consumed) : failure;
}

using Cell = DescriptorCellList::CellListData;
using Announcement = DescriptorAnnouncementSupport::AnnouncementSupportData;
using Item = DescriptorExtendedEvent::Item;
using Carousel = DescriptorAitTransportProtocol::TransportOC;

struct Taken {
  std::string (*from)(char const*);
  char const* bytes;
  char const* expected;
};

Taken const records[] = {
    {taken<DescriptorMultilingualServiceName::MultilingualServiceNameInfo>, "656E67 02 4142 01 43", "8"},
    {taken<DescriptorMosiac::CellInfo>, "04 00 02 11 12 04 0001 0002 0003 0004", "14"},
    {taken<DescriptorVBIData::VBIServiceData>, "81 02 AA BB", "4"},
    {taken<Cell>, "0001 0002 0003 004005 10 01 0002 0003 004005 02 0002 0003 004005", "26"},
    {taken<Cell>, "0001 0002 0003 004005 04", "item_length_error"},
    {taken<DescriptorCellFrequncyLink::CellFrequencyLinkData>, "0001 00000002 05 01 00000003", "12"},
    {taken<Announcement>, "14", "1"},
    {taken<Announcement>, "11 0001 0002 0003 04", "8"},
    {taken<DescriptorLocalTimeOffset::LocalTime>, "474252 79 0130 C079124500 0245", "13"},
    {taken<Item>, "02 4142 01 43", "5"},
    {taken<Item>, "02 4142 01", "no_errorcode data length mismatch"},
    {taken<Item>, "02 41", "no_errorcode data length mismatch"},
    {taken<Carousel>, "80 0001 0002 0003 04", "8"},
    {taken<Carousel>, "7F 04", "2"},
    {taken<DescriptorAitTransportProtocol::TransportIP>, "FF 0001 0002 0003 80", "8"},
    {taken<DescriptorAitApplicationName::ApplicationNameInfo>, "656E67 02 4142", "6"},
    {taken<DescriptorAitPreFetch::PreFetchInfo>, "02 4142 07", "4"}};

TEST(Records, TellTheirSizeAndFailAsTheirDescriptorsDo) {
  for (auto const& [from, bytes, expected] : records) EXPECT_EQ(from(bytes), expected) << bytes;
}

TEST(Records, OfAddressesPointAtThem) {
  Bytes const ipv6 = hex("00 0102030405060708090A0B0C0D0E0F10 1112 131415161718191A1B1C1D1E1F202122");
  DescriptorAitRoutingIPv6::RoutingIPv6Info const info(ipv6.data());
  EXPECT_EQ(Bytes(info.get_address(), info.get_address() + 16), Bytes(ipv6.begin() + 1, ipv6.begin() + 17));
  EXPECT_EQ(Bytes(info.get_address_mask(), info.get_address_mask() + 16),
            Bytes(ipv6.begin() + 19, ipv6.end()));
}

}  // namespace
}  // namespace sivane::testing
