// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Records that a host builds from a bare pointer.
#include "descriptor_check.h"
#include "expect_error.h"

namespace sivane::testing {
namespace {

/// The bytes that the record takes of a block of just these.
template <class Record>
int consumed_by(char const* text) {
  const HeapBlock bytes(hex(text));
  int consumed = -1;
  const Record record(bytes.data(), bytes.size(), consumed);
  return consumed;
}

TEST(Records, TellTheirSize) {
  EXPECT_EQ(
      consumed_by<DescriptorMultilingualServiceName::MultilingualServiceNameInfo>("65 6E 67 02 41 42 01 43"),
      8);
  EXPECT_EQ(consumed_by<DescriptorMosiac::CellInfo>("04 00 00 01 00 01"), 6);
  EXPECT_EQ(consumed_by<DescriptorMosiac::CellInfo>("04 00 00 02 00 01 00 02 00 03"), 10);
  EXPECT_EQ(consumed_by<DescriptorMosiac::CellInfo>("04 00 00 03 00 01 00 02 00 03"), 10);
  EXPECT_EQ(consumed_by<DescriptorMosiac::CellInfo>("04 00 02 11 12 04 00 01 00 02 00 03 00 04"), 14);
  EXPECT_EQ(consumed_by<DescriptorVBIData::VBIServiceData>("81 00"), 2);
  EXPECT_EQ(consumed_by<DescriptorVBIData::VBIServiceData>("81 02 AA BB"), 4);
  EXPECT_EQ(consumed_by<DescriptorCellList::CellListData>("00 01 00 02 00 03 00 40 05 00"), 10);
  EXPECT_EQ(consumed_by<DescriptorCellList::CellListData>(
                "00 01 00 02 00 03 00 40 05 10 01 00 02 00 03 00 40 05 02 00 02 00 03 00 40 05"),
            26);
  EXPECT_EQ(consumed_by<DescriptorCellFrequncyLink::CellFrequencyLinkData>("00 01 00 00 00 02 00"), 7);
  EXPECT_EQ(
      consumed_by<DescriptorCellFrequncyLink::CellFrequencyLinkData>("00 01 00 00 00 02 05 01 00 00 00 03"),
      12);
  using Announcement = DescriptorAnnouncementSupport::AnnouncementSupportData;
  for (char const* const alone : {"10", "14", "15", "16", "17"})
    EXPECT_EQ(consumed_by<Announcement>(alone), 1);
  for (char const* const full :
       {"11 00 01 00 02 00 03 04", "12 00 01 00 02 00 03 04", "13 00 01 00 02 00 03 04"}) {
    EXPECT_EQ(consumed_by<Announcement>(full), 8);
  }
}

TEST(Records, FailAsTheirDescriptorsDo) {
  using ServiceName = DescriptorMultilingualServiceName::MultilingualServiceNameInfo;
  const std::string name = "multilingual_service_name_info_descriptor";
  EXPECT_TRUE(throws([] { consumed_by<ServiceName>("65 6E 67 00"); }, error::length_error, name));
  EXPECT_TRUE(throws([] { consumed_by<ServiceName>("65 6E 67 01 41"); }, error::length_error, name + ":2"));
  EXPECT_TRUE(
      throws([] { consumed_by<ServiceName>("65 6E 67 01 41 01"); }, error::length_error, name + ":3"));
  EXPECT_TRUE(
      throws([] { consumed_by<DescriptorMosiac::CellInfo>("04 00 00 00"); }, error::syntax_error, ""));
  EXPECT_TRUE(throws([] { consumed_by<DescriptorCellList::CellListData>("00 01 00 02 00 03 00 40 05 04"); },
                     error::item_length_error, ""));
  EXPECT_TRUE(
      throws([] { consumed_by<DescriptorCellFrequncyLink::CellFrequencyLinkData>("00 01 00 00 00 02 04"); },
             error::item_length_error, ""));
}

// Their `size` is not looked at: the length bytes inside are what counts.
TEST(Records, SizeThatPlaysNoPart) {
  const HeapBlock vbi(hex("81 02 AA BB"));
  int consumed = -1;
  EXPECT_EQ(members(DescriptorVBIData::VBIServiceData(vbi.data(), 0, consumed).data, consumed), "<aabb> 4");
  const HeapBlock cell(hex("04 00 00 01 80 01"));
  EXPECT_EQ(members(DescriptorMosiac::CellInfo(cell.data(), 1, consumed).bouquetinfo.bouquet_id, consumed),
            "8001 6");
}

TEST(Records, ItemTakesWhatItNeedsOfTheSize) {
  const HeapBlock bytes(hex("02 41 42 01 43"));
  for (const int left : {5, 9}) {
    int size = left;
    const DescriptorExtendedEvent::Item item(bytes.data(), size);
    EXPECT_EQ(members(item.description, item.item, size), "'AB' 'C' 5");
  }
  for (const int left : {1, 2, 3, 4}) {
    const HeapBlock cut(Bytes(bytes.data(), bytes.data() + left));
    int size = left;
    EXPECT_TRUE(throws([&] { DescriptorExtendedEvent::Item(cut.data(), size); }, "data length mismatch"))
        << left;
  }
}

TEST(Records, LocalTimeAlwaysTakesThirteenBytes) {
  const HeapBlock bytes(hex("47 42 52 79 01 30 C0 79 12 45 00 02 45"));
  int consumed = -1;
  const DescriptorLocalTimeOffset::LocalTime time(bytes.data(), consumed);
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
