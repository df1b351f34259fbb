// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Records that a host builds from a bare pointer.
#include <numeric>
#include <type_traits>

#include "descriptor_check.h"
#include "spell.h"

namespace sivane::testing {
namespace {

/// The bytes that the record takes of a block of just these, or what it throws.
template <class Record>
std::string taken(char const* text) {
  HeapBlock const bytes(hex(text));
  int consumed = -1;
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
    {taken<Mosaic>, "04 00 00 01 00 01", "6"},
    {taken<Mosaic>, "04 00 00 02 00 01 00 02 00 03", "10"},
    {taken<Mosaic>, "04 00 00 03 00 01 00 02 00 03", "10"},
    {taken<Mosaic>, "04 00 02 11 12 04 00 01 00 02 00 03 00 04", "14"},
    {taken<Mosaic>, "04 00 00 00", "syntax_error"},
    {taken<Vbi>, "81 00", "2"},
    {taken<Vbi>, "81 02 AA BB", "4"},
    {taken<Cell>, "00 01 00 02 00 03 00 40 05 00", "10"},
    {taken<Cell>, "00 01 00 02 00 03 00 40 05 10 01 00 02 00 03 00 40 05 02 00 02 00 03 00 40 05", "26"},
    {taken<Cell>, "00 01 00 02 00 03 00 40 05 04", "item_length_error"},
    {taken<Link>, "00 01 00 00 00 02 00", "7"},
    {taken<Link>, "00 01 00 00 00 02 05 01 00 00 00 03", "12"},
    {taken<Link>, "00 01 00 00 00 02 04", "item_length_error"},
    {taken<Announcement>, "10", "1"},
    {taken<Announcement>, "14", "1"},
    {taken<Announcement>, "15", "1"},
    {taken<Announcement>, "16", "1"},
    {taken<Announcement>, "17", "1"},
    {taken<Announcement>, "11 00 01 00 02 00 03 04", "8"},
    {taken<Announcement>, "12 00 01 00 02 00 03 04", "8"},
    {taken<Announcement>, "13 00 01 00 02 00 03 04", "8"},
    {taken<Carousel>, "80 00 01 00 02 00 03 04", "8"},
    {taken<Carousel>, "7F 04", "2"},
    {taken<Ip>, "FF 00 01 00 02 00 03 80", "8"},
    {taken<Ip>, "00 80", "2"},
    {taken<ApplicationName>, "65 6E 67 00", "4"},
    {taken<ApplicationName>, "65 6E 67 02 41 42", "6"},
    {taken<PreFetch>, "00 07", "2"},
    {taken<PreFetch>, "02 41 42 07", "4"},
};

TEST(Records, TellTheirSizeAndFailAsTheirDescriptorsDo) {
  for (auto const& [from, bytes, expected] : records) EXPECT_EQ(from(bytes), expected) << bytes;
}

// Their `size` is not looked at: the length bytes inside are what counts.
TEST(Records, SizeThatPlaysNoPart) {
  HeapBlock const vbi(hex("81 02 AA BB"));
  int consumed = -1;
  EXPECT_EQ(members(DescriptorVBIData::VBIServiceData(vbi.data(), 0, consumed).data, consumed), "<aabb> 4");
  HeapBlock const cell(hex("04 00 00 01 80 01"));
  EXPECT_EQ(members(DescriptorMosiac::CellInfo(cell.data(), 1, consumed).bouquetinfo.bouquet_id, consumed),
            "8001 6");
  HeapBlock const name(hex("65 6E 67 01 41"));
  EXPECT_EQ(members(ApplicationName(name.data(), 0, consumed).application_name, consumed), "'A' 5");
  HeapBlock const prefetch(hex("01 41 85"));
  EXPECT_EQ(members(PreFetch(prefetch.data(), 0, consumed).prefetch_priority, consumed), "85 3");
}

TEST(Records, OfOneSizeNeedNoOther) {
  HeapBlock const profile(hex("8001 85 06 FF"));
  DescriptorAitApplication::ApplicationProfile const p(profile.data());
  EXPECT_EQ(members(p.application_profile, p.version_major, p.version_minor, p.version_micro),
            "8001 85 6 ff");
  HeapBlock const authorised(hex("80000015 8001 85"));
  DescriptorAitExternalApplicationAuthorisation::AitExternalApplicationAuthorisationInfo const a(
      authorised.data());
  EXPECT_EQ(members(a.application_identifer.organisation_id, a.application_identifer.application_id,
                    a.application_priority),
            "80000015 8001 85");
  HeapBlock const ipv4(hex("85 C0A80101 8001 FFFFFF00"));
  DescriptorAitRoutingIPv4::RoutingIPv4Info const v4(ipv4.data());
  EXPECT_EQ(members(v4.component_tag, v4.address, v4.port_number, v4.address_mask),
            "85 c0a80101 8001 ffffff00");
  Bytes counting(35);
  std::iota(counting.begin(), counting.end(), static_cast<unsigned char>(0));
  HeapBlock const ipv6(counting);
  DescriptorAitRoutingIPv6::RoutingIPv6Info const v6(ipv6.data());
  EXPECT_EQ(members(v6.component_tag, v6.port_number), "0 1112");
  EXPECT_EQ(Bytes(v6.get_address(), v6.get_address() + 16),
            Bytes(counting.begin() + 1, counting.begin() + 17));
  EXPECT_EQ(Bytes(v6.get_address_mask(), v6.get_address_mask() + 16),
            Bytes(counting.begin() + 19, counting.end()));
  HeapBlock const dii(hex("FFFE 8001"));
  DescriptorAitDIILocation::DIILocationInfo const d(dii.data());
  EXPECT_EQ(members(d.DII_identification, d.association_tag), "7ffe 8001");
}

// What neither dumps nor case files show.
TEST(Records, MembersBehindTheDumps) {
  DescriptorDataBroadcastId const data(hex("66 04 8001 AABB").data());
  EXPECT_EQ(members(data.id_selector_byte), "<aabb>");
  DescriptorAitTransportProtocol const oc(hex("02 0B 0001 85 80 8081 8283 8485 86").data());
  EXPECT_EQ(
      members(oc.transport_protocol_label, oc.transport_OC.service_id, oc.transport_IP.remote_connection),
      "85 8485 0");
  DescriptorAitTransportProtocol const other(hex("02 05 0003 85 80 81").data());
  EXPECT_EQ(members(other.transport_OC.remote_connection, other.transport_IP.remote_connection), "0 0");
  DescriptorAitApplicationIcons const icons(hex("0B 05 02 41 00 00 01").data());
  EXPECT_EQ(members(icons.icon_locator, icons.icon_flags), "'A\\00' 1");
}

TEST(Records, ItemTakesWhatItNeedsOfTheSize) {
  HeapBlock const bytes(hex("02 41 42 01 43"));
  for (int const left : {5, 9}) {
    int size = left;
    DescriptorExtendedEvent::Item const item(bytes.data(), size);
    EXPECT_EQ(members(item.description, item.item, size), "'AB' 'C' 5");
  }
  for (int const left : {1, 2, 3, 4}) {
    HeapBlock const cut(Bytes(bytes.data(), bytes.data() + left));
    int size = left;
    EXPECT_TRUE(throws([&] { DescriptorExtendedEvent::Item(cut.data(), size); }, "data length mismatch"))
        << left;
  }
}

TEST(Records, LocalTimeAlwaysTakesThirteenBytes) {
  HeapBlock const bytes(hex("47 42 52 79 01 30 C0 79 12 45 00 02 45"));
  int consumed = -1;
  DescriptorLocalTimeOffset::LocalTime const time(bytes.data(), consumed);
  EXPECT_EQ(members(consumed, time.country_code, time.country_region_id, time.local_time_offset_polarity,
                    time.time_of_change.get_date_as_text(), time.next_time_offset.minute),
            "d 'GBR' 1e 1 '13 10 1993 12 45 0' 2d");
}

// Each record prints itself too, under the one of two names that its owner calls.
template <class Record>
constexpr bool dumps = requires(Record const& record, std::ostream& os) {
  record.dump_state(os);
};
template <class Record>
constexpr bool dumps_within = requires(Record const& record, std::ostream& os) {
  record._dump_state(os);
};

static_assert(dumps<DescriptorISO639Language::ISO639Lang> && dumps<DescriptorServiceList::ServiceList> &&
              dumps<DescriptorTeletext::TeletextItem> && dumps<DescriptorLocalTimeOffset::LocalTime> &&
              dumps<DescriptorExtendedEvent::Item> && dumps<DescriptorContent::Content> &&
              dumps<DescriptorCAIdentifier::CAIdentifierID>);
static_assert(dumps_within<DescriptorNVODReference::service> && dumps_within<DescriptorMosiac::CellInfo> &&
              dumps_within<DescriptorMosiac::BouquetInfo> && dumps_within<DescriptorMosiac::ServiceInfo> &&
              dumps_within<DescriptorMosiac::ServiceInfo2> && dumps_within<DescriptorMosiac::EventInfo> &&
              dumps_within<DescriptorParentalRating::RatingInfo> &&
              dumps_within<DescriptorSubtitling::SubtitlingInfo> && dumps_within<MultilingualNameInfo> &&
              dumps_within<DescriptorMultilingualServiceName::MultilingualServiceNameInfo> &&
              dumps_within<DescriptorVBIData::VBIServiceData> &&
              dumps_within<DescriptorVBITeletext::VBITeleTextData>);

}  // namespace
}  // namespace sivane::testing
