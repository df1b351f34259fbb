// SPDX-License-Identifier: MIT
// Copyright (c) 2026 the sivane authors
#include <sivane/descriptors/extended/exact_body.h>
#include <sivane/descriptors/extended/region.h>

namespace sivane {

// target_region_descriptor

DescriptorTargetRegion::DescriptorTargetRegion(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = extension_body(d);
  r.code(country_code);
  regions = r.walk<Region>();
}

DescriptorTargetRegion::Region::Region(Reader& r) {
  r.skip_bits(5);
  country_code_flag = r.flag();
  region_depth = r.bits(2);
  if (country_code_flag) r.code(country_code);
  if (region_depth >= 1) primary_region_code = r.u8();
  if (region_depth >= 2) secondary_region_code = r.u8();
  if (region_depth == 3) tertiary_region_code = r.u16();
}

// target_region_name_descriptor

DescriptorTargetRegionName::DescriptorTargetRegionName(DescriptorBytes d) : ExtendedDescriptor(d) {
  Reader r = extension_body(d);
  r.code(country_code);
  r.code(ISO_639_language_code);
  regions = r.walk<Region>();
}

DescriptorTargetRegionName::Region::Region(Reader& r) {
  region_depth = r.bits(2);
  int const region_name_length = r.bits(6);
  region_name = r.string(region_name_length);
  primary_region_code = r.u8();
  if (region_depth >= 2) secondary_region_code = r.u8();
  if (region_depth == 3) tertiary_region_code = r.u16();
}

// network_change_notify_descriptor

DescriptorNetworkChangeNotify::DescriptorNetworkChangeNotify(DescriptorBytes d)
    : ExtendedDescriptor(d), cells(extension_body(d).walk<Cell>()) {}

DescriptorNetworkChangeNotify::Cell::Cell(Reader& r) {
  cell_id = r.u16();
  changes = exact_loop(r, r.u8()).walk<Change>();
}

DescriptorNetworkChangeNotify::Change::Change(Reader& r) {
  network_change_id = r.u8();
  network_change_version = r.u8();
  start_time_of_change = DateTime(r);
  change_duration = Duration(r);
  receiver_category = r.bits(3);
  invariant_ts_present = r.flag();
  change_type = r.bits(4);
  message_id = r.u8();
  if (!invariant_ts_present) return;
  invariant_ts_tsid = r.u16();
  invariant_ts_onid = r.u16();
}

}  // namespace sivane
