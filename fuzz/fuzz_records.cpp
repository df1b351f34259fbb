// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Entries, records and descriptors from bare pointers. The first byte chooses the class, the others are its
// bytes, in a block that ends where the class says that it reads no further.
#include <sivane/sivane.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <type_traits>

#include "heap_block.h"
#include "input.h"

namespace {

using namespace sivane;
using fuzzing::check;
using testing::Bytes;
using testing::HeapBlock;

/// More than any record or event takes.
constexpr std::size_t enough = 12 + 0xFFF;

/// What the record takes of a block; -1 where it refuses it.
template <class Record>
int taken(HeapBlock const& block) {
  int size = block.size();
  try {
    if constexpr (std::is_constructible_v<Record, unsigned char const*, int, int&>) {
      Record(block.data(), block.size(), size);
    } else if constexpr (std::is_same_v<Record, PmtStreamInfo>) {
      Record(reinterpret_cast<_PMT_INFO*>(block.data()), size);
    } else {
      Record(block.data(), size);
    }
  } catch (error const& failure) {
    check(failure.offset == -1, "a bare pointer is of no section");
    return -1;
  }
  check(size > 0, "a record takes something");
  return size;
}

/// `size` is the bound.
template <class Record>
void bounded(Bytes bytes) {
  taken<Record>(HeapBlock(bytes));
}

/// `size` is not looked at: the bound is what the record claims, and it takes all of that.
template <class Record>
void claimed(Bytes bytes) {
  bytes.resize(enough);
  int const size = taken<Record>(HeapBlock(bytes));
  if (size < 0) return;
  bytes.resize(static_cast<std::size_t>(size));
  check(taken<Record>(HeapBlock(bytes)) == size, "a record reads nothing behind what it takes");
}

template <class Record, std::size_t size>
void fixed(Bytes bytes) {
  bytes.resize(size);
  Record(HeapBlock(bytes).data());
}

/// The bound is the descriptor's own length.
template <class Descriptor>
void descriptor(Bytes bytes) {
  bytes.resize(std::max<std::size_t>(bytes.size(), 2));
  bytes.resize(std::size_t{2} + bytes[1]);
  HeapBlock const block(bytes);
  try {
    check(Descriptor(DescriptorBytes(block.data())).length == bytes[1], "a descriptor keeps its length");
  } catch (error const& failure) {
    check(failure.offset == -1, "a bare pointer is of no section");
  }
}

/// A new class goes to the end of its group, the groups stay in their order.
constexpr void (*exercises[])(Bytes) = {
    bounded<PmtStreamInfo>,
    bounded<Sdt::Service_info>,
    bounded<Nit::Stream_info>,
    bounded<Bat::Stream_info>,
    bounded<Ait::Application>,
    bounded<DescriptorExtendedEvent::Item>,
    bounded<DescriptorMultilingualServiceName::MultilingualServiceNameInfo>,
    bounded<MultilingualNameInfo>,
    claimed<Eit::EventInfo>,
    claimed<Rst::Status>,
    claimed<LengthPrefixedString>,
    claimed<Text>,
    claimed<DescriptorCellList::CellListData>,
    claimed<DescriptorCellFrequncyLink::CellFrequencyLinkData>,
    claimed<DescriptorAnnouncementSupport::AnnouncementSupportData>,
    claimed<DescriptorLocalTimeOffset::LocalTime>,
    claimed<DescriptorMosiac::CellInfo>,
    claimed<DescriptorVBIData::VBIServiceData>,
    claimed<DescriptorAitApplicationName::ApplicationNameInfo>,
    claimed<DescriptorAitTransportProtocol::TransportOC>,
    claimed<DescriptorAitTransportProtocol::TransportIP>,
    claimed<DescriptorAitPreFetch::PreFetchInfo>,
    fixed<ApplicationIdentifier, 6>,
    fixed<DateTime, 5>,
    fixed<Duration, 3>,
    fixed<TimeOffset, 2>,
    fixed<DescriptorAitApplication::ApplicationProfile, 5>,
    fixed<DescriptorAitExternalApplicationAuthorisation::AitExternalApplicationAuthorisationInfo, 7>,
    fixed<DescriptorAitRoutingIPv4::RoutingIPv4Info, 11>,
    fixed<DescriptorAitRoutingIPv6::RoutingIPv6Info, 35>,
    fixed<DescriptorAitDIILocation::DIILocationInfo, 4>,
#define SIVANE_ROW(tag, Class, getter, element) descriptor<Class>,
#include <sivane/descriptors/descriptor_rows.inc>
#define SIVANE_ROW(tag, Class, getter, element) descriptor<Class>,
#include <sivane/descriptors/ait_descriptor_rows.inc>
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  sivane::fuzzing::Input input(data, size);
  exercises[input.byte() % std::size(exercises)](input.rest());
  return 0;
}
