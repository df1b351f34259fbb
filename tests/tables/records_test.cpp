// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
//
// Entries of tables and records of descriptors that a host builds from a bare pointer, as records.txt lists
// them.
#include <gtest/gtest.h>
#include <sivane/sivane.h>

#include <map>
#include <set>

#include "expect_error.h"
#include "heap_block.h"
#include "section_text.h"

namespace sivane::testing {
namespace {

/// What a record with `size` bytes said to be left takes of them, or throws.
template <class Record>
KeyedLines taken(Bytes const& bytes, int size) {
  HeapBlock const block(bytes);
  int used = size;
  std::string const failure = thrown([&] {
    if constexpr (std::is_constructible_v<Record, unsigned char*, int, int&>) {
      Record(block.data(), size, used);
    } else if constexpr (std::is_constructible_v<Record, _PMT_INFO*, int&>) {
      Record(reinterpret_cast<_PMT_INFO*>(block.data()), used);
    } else {
      Record(block.data(), used);
    }
  });
  if (failure.empty()) return {{"throws", ""}, {"takes", std::to_string(used) + '\n'}};
  return {{"throws", failure + '\n'}, {"takes", ""}};
}

#define SIVANE_TAKEN(Record) std::pair(#Record, &taken<Record>)

std::map<std::string, KeyedLines (*)(Bytes const&, int)> const records = {
    SIVANE_TAKEN(PmtStreamInfo),
    SIVANE_TAKEN(Nit::Stream_info),
    SIVANE_TAKEN(Bat::Stream_info),
    SIVANE_TAKEN(Sdt::Service_info),
    SIVANE_TAKEN(Eit::EventInfo),
    SIVANE_TAKEN(Rst::Status),
    SIVANE_TAKEN(Ait::Application),
    SIVANE_TAKEN(DescriptorMultilingualServiceName::MultilingualServiceNameInfo),
    SIVANE_TAKEN(DescriptorMosiac::CellInfo),
    SIVANE_TAKEN(DescriptorVBIData::VBIServiceData),
    SIVANE_TAKEN(DescriptorCellList::CellListData),
    SIVANE_TAKEN(DescriptorCellFrequncyLink::CellFrequencyLinkData),
    SIVANE_TAKEN(DescriptorAnnouncementSupport::AnnouncementSupportData),
    SIVANE_TAKEN(DescriptorLocalTimeOffset::LocalTime),
    SIVANE_TAKEN(DescriptorExtendedEvent::Item),
    SIVANE_TAKEN(DescriptorAitTransportProtocol::TransportOC),
    SIVANE_TAKEN(DescriptorAitTransportProtocol::TransportIP),
    SIVANE_TAKEN(DescriptorAitApplicationName::ApplicationNameInfo),
    SIVANE_TAKEN(DescriptorAitPreFetch::PreFetchInfo),
    SIVANE_TAKEN(MultilingualNameInfo),
    SIVANE_TAKEN(LengthPrefixedString)};

TEST(Records, TellTheirSizeAndFailAsTheirOwnersDo) {
  std::set<std::string> listed;
  for (Step const& step : read_steps("tables/records.txt")) {
    listed.insert(step.title);
    Bytes const bytes = assemble(step.argument);
    auto const size = step.lines.find("size");
    int const left = size == step.lines.end() ? static_cast<int>(bytes.size()) : std::stoi(size->second);
    expect_lines(step, records.at(step.title)(bytes, left));
  }
  EXPECT_EQ(listed.size(), records.size());
}

}  // namespace
}  // namespace sivane::testing
