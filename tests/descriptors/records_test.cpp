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

using ServiceName = DescriptorMultilingualServiceName::MultilingualServiceNameInfo;
using Mosaic = DescriptorMosiac::CellInfo;
using Vbi = DescriptorVBIData::VBIServiceData;
using Cell = DescriptorCellList::CellListData;
using Link = DescriptorCellFrequncyLink::CellFrequencyLinkData;
using Announcement = DescriptorAnnouncementSupport::AnnouncementSupportData;
using LocalTime = DescriptorLocalTimeOffset::LocalTime;
using Item = DescriptorExtendedEvent::Item;
using Carousel = DescriptorAitTransportProtocol::TransportOC;
using Ip = DescriptorAitTransportProtocol::TransportIP;
using ApplicationName = DescriptorAitApplicationName::ApplicationNameInfo;
using PreFetch = DescriptorAitPreFetch::PreFetchInfo;

struct Taken {
  std::string (*from)(char const*);
  char const* bytes;
  char const* expected;
};

Taken const records[] = {
    {taken<ServiceName>, "65 6E 67 02 41 42 01 43", "8"},
    {taken<ServiceName>, "65 6E 67 00", "length_error multilingual_service_name_info_descriptor"},
    {taken<ServiceName>, "65 6E 67 01 41", "length_error multilingual_service_name_info_descriptor:2"},
    {taken<ServiceName>, "65 6E 67 01 41 01", "length_error multilingual_service_name_info_descriptor:3"},
    {taken<Mosaic>, "04 00 00 02 00 01 00 02 00 03", "10"},
    {taken<Mosaic>, "04 00 02 11 12 04 00 01 00 02 00 03 00 04", "14"},
    {taken<Mosaic>, "04 00 00 00", "syntax_error"},
    {taken<Vbi>, "81 02 AA BB", "4"},
    {taken<Cell>, "00 01 00 02 00 03 00 40 05 10 01 00 02 00 03 00 40 05 02 00 02 00 03 00 40 05", "26"},
    {taken<Cell>, "00 01 00 02 00 03 00 40 05 04", "item_length_error"},
    {taken<Link>, "00 01 00 00 00 02 05 01 00 00 00 03", "12"},
    {taken<Link>, "00 01 00 00 00 02 04", "item_length_error"},
    {taken<Announcement>, "14", "1"},
    {taken<Announcement>, "11 00 01 00 02 00 03 04", "8"},
    {taken<LocalTime>, "47 42 52 79 01 30 C0 79 12 45 00 02 45", "13"},
    {taken<Item>, "02 41 42 01 43", "5"},
    {taken<Item>, "02 41 42 01", "no_errorcode data length mismatch"},
    {taken<Item>, "02 41", "no_errorcode data length mismatch"},
    {taken<Carousel>, "80 00 01 00 02 00 03 04", "8"},
    {taken<Carousel>, "7F 04", "2"},
    {taken<Ip>, "FF 00 01 00 02 00 03 80", "8"},
    {taken<Ip>, "00 80", "2"},
    {taken<ApplicationName>, "65 6E 67 02 41 42", "6"},
    {taken<PreFetch>, "02 41 42 07", "4"}};

TEST(Records, TellTheirSizeAndFailAsTheirDescriptorsDo) {
  for (auto const& [from, bytes, expected] : records) EXPECT_EQ(from(bytes), expected) << bytes;
}

TEST(Records, OfOneSizeNeedNoOther) {
  EXPECT_EQ(DescriptorAitApplication::ApplicationProfile(hex("8001 85 06 FF").data()).version_micro, 0xFF);
  DescriptorAitExternalApplicationAuthorisation::AitExternalApplicationAuthorisationInfo const authorised(
      hex("80000015 8001 85").data());
  EXPECT_EQ(authorised.application_priority, 0x85);
  EXPECT_EQ(DescriptorAitRoutingIPv4::RoutingIPv4Info(hex("85 C0A80101 8001 FFFFFF00").data()).address_mask,
            0xFFFFFF00);
  EXPECT_EQ(DescriptorAitDIILocation::DIILocationInfo(hex("FFFE 8001").data()).association_tag, 0x8001);
  Bytes const ipv6 = hex("00 0102030405060708090A0B0C0D0E0F10 1112 131415161718191A1B1C1D1E1F202122");
  DescriptorAitRoutingIPv6::RoutingIPv6Info const info(ipv6.data());
  EXPECT_EQ(Bytes(info.get_address(), info.get_address() + 16), Bytes(ipv6.begin() + 1, ipv6.begin() + 17));
  EXPECT_EQ(Bytes(info.get_address_mask(), info.get_address_mask() + 16),
            Bytes(ipv6.begin() + 19, ipv6.end()));
}

}  // namespace
}  // namespace sivane::testing
